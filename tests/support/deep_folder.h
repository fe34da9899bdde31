#pragma once
// Folders that are nested more deeply than a path can name.
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace test {

/// Makes `depth` folders inside each other, in an existing folder, and a file in the last one.
inline void nestFolders(const std::string& path, int depth) {
    int parent = ::open(path.c_str(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < depth; ++i) {
        ::mkdirat(parent, "a", 0777);
        const int next = ::openat(parent, "a", O_RDONLY | O_DIRECTORY);
        ::close(parent);
        parent = next;
    }
    ::close(::openat(parent, "file", O_WRONLY | O_CREAT, 0666));
    ::close(parent);
}

} // namespace test
