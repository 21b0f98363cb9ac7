#include "controls/FileNames.h"

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "controls/DirectoryListing.h"

namespace sonarium {
namespace {

// Whether a directory entry of that name exists at all: a dangling symlink counts, since it
// is still there to be deleted or renamed.
bool entryExists(const char* path) {
    struct stat st;
    return ::lstat(path, &st) == 0;
}

// The entry of directory `dir` (bytes, as the system takes them) whose name equals `name`
// without regard to case, or "" when none does. Should several differ only in case, the
// smallest in exact order wins, so the answer does not depend on the order the system lists
// them. Each thread keeps the listings it read while their directories stay unchanged: a queue
// of songs named ".mp3" asks for ".MP3" in the same folder once per row.
QString findIgnoringCase(const std::string& dir, const QString& name) {
    thread_local DirectoryListing listings;
    const DirectoryListing::Entries& entries =
        listings.read(QFile::decodeName(QByteArray::fromStdString(dir.empty() ? std::string(".") : dir)));
    return entries.byFoldedName.value(name.toCaseFolded());
}

}  // namespace

// Iterative and linear in the path's length: a hand-made name of tens of thousands of
// components must fail as a missing file, not exhaust the stack. The system's own limits
// answer first: a name longer than it allows, or one that loops, is simply missing.
QString resolveFileName(const QString& path) {
    if (path.isEmpty()) return path;
    const QByteArray given = QFile::encodeName(path);
    if (entryExists(given.constData())) return path;
    if (errno == ENAMETOOLONG || errno == ELOOP) return path;

    // Trailing slashes belong to no component: resolve what is before them, then put them back.
    qsizetype end = given.size();
    while (end > 1 && given[end - 1] == '/') --end;
    std::string buf(given.constData(), size_t(end));

    // Components as (first byte, end) in buf; a leading "/" is not one.
    std::vector<std::pair<size_t, size_t>> parts;
    for (size_t i = 0; i < buf.size();) {
        while (i < buf.size() && buf[i] == '/') ++i;
        const size_t from = i;
        while (i < buf.size() && buf[i] != '/') ++i;
        if (i > from) parts.emplace_back(from, i);
    }

    // The longest prefix that exists as written, found from the right: usually only the last
    // name is spelt differently. Each test cuts the one buffer in place.
    size_t exact = 0;  // parts[0, exact) exist exactly as given
    for (size_t k = parts.size(); k-- > 1;) {
        const size_t cut = parts[k - 1].second;
        const char saved = buf[cut];
        buf[cut] = '\0';
        const bool there = entryExists(buf.c_str());
        buf[cut] = saved;
        if (there) {
            exact = k;
            break;
        }
    }

    // From there on each name is looked up without regard to case. The text stays the caller's
    // until a name is corrected; after that the separators are single slashes.
    std::string resolved = exact > 0 ? buf.substr(0, parts[exact - 1].second)
                                     : buf.substr(0, parts.empty() ? buf.size() : parts[0].first);
    QString out = QFile::decodeName(QByteArray::fromStdString(resolved));
    bool corrected = false;
    for (size_t k = exact; k < parts.size(); ++k) {
        const size_t sepFrom = k == 0 ? parts[0].first : parts[k - 1].second;
        const std::string sep = corrected ? std::string(sepFrom < parts[k].first ? "/" : "")
                                          : buf.substr(sepFrom, parts[k].first - sepFrom);
        const std::string name = buf.substr(parts[k].first, parts[k].second - parts[k].first);
        const size_t before = resolved.size();
        resolved += sep;
        resolved += name;
        if (name == "." || name == ".." || entryExists(resolved.c_str())) {
            out += QFile::decodeName(QByteArray::fromStdString(sep + name));
            continue;
        }
        resolved.resize(before);
        const QString wanted = QFile::decodeName(QByteArray::fromStdString(name));
        const QString found = findIgnoringCase(resolved, wanted);
        if (found.isEmpty()) {
            // Nothing of that name: the rest is a new name, kept as the caller spelt it.
            out += QFile::decodeName(QByteArray::fromStdString(sep + buf.substr(parts[k].first)));
            return out + path.mid(path.size() - (given.size() - end));
        }
        resolved += sep;
        resolved += QFile::encodeName(found).toStdString();
        out += QFile::decodeName(QByteArray::fromStdString(sep)) + found;
        corrected = corrected || found != wanted;
    }
    return out + path.mid(path.size() - (given.size() - end));
}

bool fileExists(const QString& path) {
    if (path.isEmpty()) return false;
    const QFileInfo info(resolveFileName(path));
    return info.exists() && !info.isDir();
}

bool dirExists(const QString& path) {
    if (path.isEmpty()) return false;
    return QFileInfo(resolveFileName(path)).isDir();
}

bool wildcardMatch(const QString& pattern, const QString& name) {
    if (pattern == u"*.*" || pattern == u"*") return true;
    // Greedy match with one backtrack point: the last star seen and where it started eating.
    qsizetype p = 0, n = 0, star = -1, starFrom = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            star = p++;
            starFrom = n;
        } else if (p < pattern.size() &&
                   (pattern[p] == u'?' || pattern[p].toCaseFolded() == name[n].toCaseFolded())) {
            ++p, ++n;
        } else if (star >= 0) {
            p = star + 1;
            n = ++starFrom;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'*') ++p;
    return p == pattern.size();
}

QStringList matchNames(const QStringList& names, const QString& patterns) {
    QStringList wanted;
    for (const QString& p : patterns.split(u';', Qt::SkipEmptyParts))
        if (!p.trimmed().isEmpty()) wanted << p.trimmed();
    if (wanted.isEmpty()) wanted << QStringLiteral("*");

    QStringList matched;
    for (const QString& name : names)
        if (std::any_of(wanted.begin(), wanted.end(),
                        [&](const QString& p) { return wildcardMatch(p, name); }))
            matched << name;
    std::sort(matched.begin(), matched.end(), lessIgnoringCase);
    return matched;
}

QStringList matchFiles(const QString& dir, const QString& patterns) {
    DirectoryListing listing;
    return matchNames(listing.read(dir).files, patterns);
}

bool lessIgnoringCase(const QString& a, const QString& b) {
    // Names that differ only in case still get one fixed order.
    const int c = QString::compare(a, b, Qt::CaseInsensitive);
    return c != 0 ? c < 0 : a < b;
}

}  // namespace sonarium
