#pragma once
// One scratch file per fuzzing process, rewritten for every input and removed at exit.
#include <QDir>
#include <QTemporaryFile>
#include <cstdint>
#include <cstdlib>

namespace sonarium::fuzz {

// The name of the scratch file, now holding the `size` bytes at `data`.
inline QString scratchFile(const std::uint8_t* data, std::size_t size) {
    static QTemporaryFile file(QDir::tempPath() + QStringLiteral("/sonarium-fuzz-XXXXXX.mp3"));
    if (!file.isOpen() && !file.open()) std::abort();
    if (!file.resize(0) || !file.seek(0) ||
        file.write(reinterpret_cast<const char*>(data), qint64(size)) != qint64(size) || !file.flush())
        std::abort();
    return file.fileName();
}

}  // namespace sonarium::fuzz
