// Arbitrary text as a file name the program looks up without regard to case, as a hand-edited
// settings file hands it over: the answer comes at once whatever the depth or length, names an
// existing entry whenever the exact spelling does, and differs from the question only in the
// case of its letters and in doubled slashes.
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <cstdlib>
#include <string>

#include "Check.h"
#include "controls/FileNames.h"

namespace {

using namespace sonarium;

// A small tree the names run into: a directory, a file, a symlink that loops. Removed at exit.
struct Tree {
    std::string root = make();
    ~Tree() { QDir(QFile::decodeName(QByteArray::fromStdString(root))).removeRecursively(); }
    static std::string make();
};

std::string Tree::make() {
    const char* tmp = std::getenv("TMPDIR");
    std::string root = std::string(tmp && *tmp ? tmp : "/tmp") + "/sonarium-fuzz-paths-XXXXXX";
    if (!mkdtemp(root.data())) std::abort();
    mkdir((root + "/Music").c_str(), 0755);
    mkdir((root + "/Music/Rock").c_str(), 0755);
    FILE* f = std::fopen((root + "/Music/Rock/Song.MP3").c_str(), "w");
    if (f) std::fclose(f);
    [[maybe_unused]] int r = symlink((root + "/self").c_str(), (root + "/self").c_str());
    r = symlink(root.c_str(), (root + "/Music/up").c_str());
    return root;
}

QString withoutDoubleSlashes(QString s) {
    while (s.contains(QStringLiteral("//"))) s.replace(QStringLiteral("//"), QStringLiteral("/"));
    return s;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Tree tree;
    const std::string& root = tree.root;
    const QString name = QFile::decodeName(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    if (name.contains(QChar(0))) return 0;  // no system call takes such a name
    for (const QString& path : {name, QFile::decodeName(QByteArray::fromStdString(root)) + u'/' + name}) {
        const QString found = resolveFileName(path);
        FUZZ_CHECK(withoutDoubleSlashes(found).compare(withoutDoubleSlashes(path), Qt::CaseInsensitive) == 0);
        struct stat st;
        if (::lstat(QFile::encodeName(path).constData(), &st) == 0) FUZZ_CHECK(found == path);
        FUZZ_CHECK(!(fileExists(path) && dirExists(path)));
    }
    return 0;
}
