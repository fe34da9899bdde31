#pragma once
// A temporary folder for one test.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdlib.h>
#include <string>

class TempFolder {
public:
    TempFolder() {
        std::string name = "/tmp/fernwick-test-XXXXXX";
        path_ = ::mkdtemp(name.data());
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    const std::filesystem::path& path() const { return path_; }

    std::string write(const std::string& name, const std::string& bytes) const {
        const auto file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        return file.string();
    }
    std::string read(const std::string& name) const {
        std::ifstream in(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

private:
    std::filesystem::path path_;
};
