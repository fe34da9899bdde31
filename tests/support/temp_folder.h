#pragma once
// A temporary folder, deleted at the end of the test.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace test {

class TempFolder {
public:
    TempFolder() {
        std::string pattern = std::filesystem::temp_directory_path() / "fernwick-test-XXXXXX";
        if (!::mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
        path_ = std::filesystem::canonical(pattern).string();
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::string& path() const { return path_; }
    std::string operator/(std::string_view name) const { return path_ + "/" + std::string(name); }

    /// Writes a file, creating its folders, and returns its path.
    std::string write(std::string_view name, std::string_view bytes) const {
        const auto path = *this / name;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    std::string read(std::string_view name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(*this / name, std::ios::binary).rdbuf();
        return bytes.str();
    }
    /// Number of entries in the folder.
    std::size_t count() const {
        return std::size_t(
            std::distance(std::filesystem::directory_iterator(path_), std::filesystem::directory_iterator()));
    }

private:
    std::string path_;
};

} // namespace test
