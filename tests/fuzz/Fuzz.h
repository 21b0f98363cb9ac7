#pragma once
// What the fuzz targets share: a check that keeps the failing input, and a scratch file.
#include <QDir>
#include <QTemporaryFile>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// A broken invariant: say which, then abort so that the fuzzer keeps the input.
#define FUZZ_CHECK(cond) ::sonarium::fuzz::check(bool(cond), #cond, __FILE__, __LINE__)

namespace sonarium::fuzz {

inline void check(bool ok, const char* what, const char* file, int line) {
    if (ok) return;
    std::fprintf(stderr, "%s:%d: check failed: %s\n", file, line, what);
    std::abort();
}

// The name of the process's one scratch file, now holding the `size` bytes at `data`; it is
// removed at exit.
inline QString scratchFile(const std::uint8_t* data, std::size_t size) {
    static QTemporaryFile file(QDir::tempPath() + QStringLiteral("/sonarium-fuzz-XXXXXX.mp3"));
    if (!file.isOpen() && !file.open()) std::abort();
    if (!file.resize(0) || !file.seek(0) ||
        file.write(reinterpret_cast<const char*>(data), qint64(size)) != qint64(size) || !file.flush())
        std::abort();
    return file.fileName();
}

}  // namespace sonarium::fuzz
