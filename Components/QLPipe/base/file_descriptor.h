#pragma once
// Ownership of file descriptors.
#include <unistd.h>
#include <utility>

namespace qlpipe {

/// Owns a descriptor and closes it; -1 if empty.
class FileDescriptor {
public:
    explicit FileDescriptor(int number = -1) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~FileDescriptor() {
        if (number_ >= 0) ::close(number_);
    }

    int get() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }
    int release() { return std::exchange(number_, -1); }

private:
    int number_;
};

} // namespace qlpipe
