#pragma once
// A full disk, for this process.
#include <csignal>
#include <sys/resource.h>

namespace test {

/// Until the end of its lifetime, no file of this process can grow beyond a size.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limit{bytes, old_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, oldHandler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*oldHandler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit old_{};
};

} // namespace test
