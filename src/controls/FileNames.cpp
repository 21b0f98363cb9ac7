#include "controls/FileNames.h"

#include <sys/stat.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace sonarium {
namespace {

// Whether a directory entry of that name exists at all: a dangling symlink counts, since it
// is still there to be deleted or renamed.
bool entryExists(const QString& path) {
    struct stat st;
    return ::lstat(QFile::encodeName(path).constData(), &st) == 0;
}

// The entry of `dir` whose name equals `name` without regard to case, or "" when none does.
// Should several differ only in case, the smallest in exact order wins, so the answer does not
// depend on the order the file system lists them.
QString findIgnoringCase(const QString& dir, const QString& name) {
    QString best;
    QDirIterator it(dir.isEmpty() ? QStringLiteral(".") : dir,
                    QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (it.hasNext()) {
        it.next();
        const QString entry = it.fileName();
        if (QString::compare(entry, name, Qt::CaseInsensitive) == 0 && (best.isEmpty() || entry < best))
            best = entry;
    }
    return best;
}

}  // namespace

QString resolveFileName(const QString& path) {
    if (path.isEmpty() || entryExists(path)) return path;

    // Trailing slashes belong to no component: resolve what is before them.
    int end = int(path.size());
    while (end > 1 && path[end - 1] == u'/') --end;
    if (end < path.size()) return resolveFileName(path.left(end)) + path.mid(end);

    const int slash = int(path.lastIndexOf(u'/'));
    const QString prefix = path.left(slash + 1);  // the directory with its slash(es), or ""
    const QString name = path.mid(slash + 1);

    QString dir = prefix;
    while (dir.size() > 1 && dir.endsWith(u'/')) dir.chop(1);
    const QString resolvedDir = dir.isEmpty() ? dir : resolveFileName(dir);
    // Keep the caller's text unchanged where the directory already had the right spelling.
    QString resolvedPrefix = prefix;
    if (resolvedDir != dir) {
        resolvedPrefix = resolvedDir.endsWith(u'/') ? resolvedDir : resolvedDir + u'/';
        if (entryExists(resolvedPrefix + name)) return resolvedPrefix + name;
    }
    if (name == u"." || name == u"..") return resolvedPrefix + name;

    const QString found = findIgnoringCase(resolvedDir, name);
    return resolvedPrefix + (found.isEmpty() ? name : found);
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

QStringList matchFiles(const QString& dir, const QString& patterns) {
    QStringList wanted;
    for (const QString& p : patterns.split(u';', Qt::SkipEmptyParts))
        if (!p.trimmed().isEmpty()) wanted << p.trimmed();
    if (wanted.isEmpty()) wanted << QStringLiteral("*");

    QStringList names;
    // No sorting: the program relies on the order the file system gives.
    QDirIterator it(dir.isEmpty() ? QStringLiteral(".") : dir, QDir::Files | QDir::NoDotAndDotDot);
    while (it.hasNext()) {
        it.next();
        const QString name = it.fileName();
        for (const QString& p : wanted) {
            if (wildcardMatch(p, name)) {
                names << name;
                break;
            }
        }
    }
    return names;
}

}  // namespace sonarium
