#pragma once
// One scratch file per fuzzing process, rewritten for every input and removed at exit.
#include <unistd.h>

#include <QString>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace sonarium::fuzz {

class TempFile {
public:
    explicit TempFile(const char* suffix) {
        const char* dir = std::getenv("TMPDIR");
        std::string pattern = std::string(dir && *dir ? dir : "/tmp") + "/sonarium-fuzz-XXXXXX" + suffix;
        fd_ = mkstemps(pattern.data(), int(std::char_traits<char>::length(suffix)));
        if (fd_ < 0) std::abort();
        name_ = pattern;
    }
    ~TempFile() {
        close(fd_);
        unlink(name_.c_str());
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    // Replaces the contents with `size` bytes.
    void fill(const std::uint8_t* data, std::size_t size) {
        if (ftruncate(fd_, 0) != 0 || pwrite(fd_, data, size, 0) != ssize_t(size)) std::abort();
    }
    QString path() const { return QString::fromStdString(name_); }

private:
    int fd_ = -1;
    std::string name_;
};

}  // namespace sonarium::fuzz
