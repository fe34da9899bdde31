#pragma once
#include <unistd.h>
#include <utility>

namespace qlpipe {

/// A descriptor that is closed with its owner; -1 for none.
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

    int number() const { return number_; }
    int release() { return std::exchange(number_, -1); }

private:
    int number_;
};

} // namespace qlpipe
