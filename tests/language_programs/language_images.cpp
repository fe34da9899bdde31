// Writes the image of each small program that can be compiled into a folder, for machines that have no compiler.
// Usage: language_images FOLDER
#include "tests/language_programs/compiled_case.h"
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

/// File names sort as the programs do.
std::string nameOf(std::size_t number, const language_programs::Case& one) {
    std::string title = one.title;
    for (char& c : title)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    return std::to_string(1000 + number).substr(1) + "-" + one.file + "-" + title + ".qlx";
}

bool writeImage(const std::filesystem::path& file, const language_programs::Case& one) {
    try {
        const auto image = language_programs::imageOf(one, filesOf(one));
        std::ofstream(file, std::ios::binary) << image;
        return true;
    } catch (const std::exception& refused) {
        std::printf("%s: %s: %s\n", one.file.c_str(), one.title.c_str(), refused.what());
        return false;
    }
}

} // namespace

int main(int count, char** words) {
    if (count != 2) return 2;
    const std::filesystem::path folder = words[1];
    std::filesystem::create_directories(folder);
    std::size_t number = 0, written = 0;
    for (const auto& one : language_programs::readAllCases())
        written += writeImage(folder / nameOf(number++, one), one) ? 1 : 0;
    std::printf("%zu of %zu programs compiled\n", written, number);
    return written > 0 ? 0 : 1;
}
