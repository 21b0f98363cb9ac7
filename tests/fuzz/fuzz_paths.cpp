// Arbitrary text as a file name the program looks up without regard to case, as a hand-edited
// settings file hands it over: the answer comes at once whatever the depth or length, names an
// existing entry whenever the exact spelling does, and differs from the question only in the
// case of its letters and in doubled slashes.
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>

#include "Fuzz.h"
#include "controls/FileNames.h"

namespace {

using namespace sonarium;

// A small tree the names run into: a directory, a file, a symlink that loops and one back up
// the tree. Removed at exit.
QString makeTree() {
    static QTemporaryDir tree(QDir::tempPath() + QStringLiteral("/sonarium-fuzz-paths-XXXXXX"));
    const QString root = tree.path();
    if (!tree.isValid() || !QDir().mkpath(root + "/Music/Rock")) std::abort();
    QFile(root + "/Music/Rock/Song.MP3").open(QIODevice::WriteOnly);
    QFile::link(root + "/self", root + "/self");
    QFile::link(root, root + "/Music/up");
    return root;
}

QString withoutDoubleSlashes(QString s) {
    while (s.contains(QStringLiteral("//"))) s.replace(QStringLiteral("//"), QStringLiteral("/"));
    return s;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QString root = makeTree();
    const QString name = QFile::decodeName(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    if (name.contains(QChar(0))) return 0;  // no system call takes such a name
    for (const QString& path : {name, root + u'/' + name}) {
        const QString found = resolveFileName(path);
        FUZZ_CHECK(withoutDoubleSlashes(found).compare(withoutDoubleSlashes(path), Qt::CaseInsensitive) == 0);
        struct stat st;
        if (::lstat(QFile::encodeName(path).constData(), &st) == 0) FUZZ_CHECK(found == path);
        FUZZ_CHECK(!(fileExists(path) && dirExists(path)));
    }
    return 0;
}
