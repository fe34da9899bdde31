#pragma once
// Small programs with their output, as tests/language/programs/README.md describes them.
#include <algorithm>
#include <cctype>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace language_programs {

struct Case {
    std::string file, title, source, pending;
    std::string library; ///< which the project refers to; may be empty
    std::vector<std::string> resources;
    std::string code, expected;
    std::uint32_t codePage = 1252;

    [[nodiscard]] bool isPending() const { return !pending.empty(); }
    [[nodiscard]] bool hasSource() const { return source != "unsourced"; }
    friend void PrintTo(const Case& one, std::ostream* out) { *out << one.file << ": " << one.title; }
};

inline constexpr std::string_view kTitle = "=== ", kSource = "' source: ", kUnsourced = "' unsourced",
                                  kPending = "' pending: ", kLibrary = "' reference: ", kCodePage = "' code page: ",
                                  kResource = "' resource: ", kOutput = "---";

inline std::string trimmed(std::string text) {
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back()))) text.pop_back();
    return text;
}

/// The cases of one file, in its order.
inline std::vector<Case> readCases(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::vector<Case> cases;
    bool isOutput = false;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with(kTitle)) {
            cases.push_back({path.stem().string(), line.substr(kTitle.size()), {}, {}, {}, {}, {}, {}, 1252});
            isOutput = false;
            continue;
        }
        if (cases.empty()) continue; // the head of the file
        Case& last = cases.back();
        const bool isHead = last.code.empty() && !isOutput;
        if (isHead && line.starts_with(kSource))
            last.source = line.substr(kSource.size());
        else if (isHead && line == kUnsourced)
            last.source = "unsourced";
        else if (isHead && line.starts_with(kPending))
            last.pending = line.substr(kPending.size());
        else if (isHead && line.starts_with(kLibrary))
            last.library = line.substr(kLibrary.size());
        else if (isHead && line.starts_with(kCodePage))
            last.codePage = static_cast<std::uint32_t>(std::stoul(line.substr(kCodePage.size())));
        else if (isHead && line.starts_with(kResource))
            last.resources.push_back(line.substr(kResource.size()));
        else if (!isOutput && line == kOutput)
            isOutput = true;
        else
            (isOutput ? last.expected : last.code) += line + "\n";
    }
    for (Case& one : cases) {
        if (one.source.empty()) throw std::runtime_error(one.file + ": no source: " + one.title);
        one.expected = trimmed(one.expected);
    }
    return cases;
}

/// Those of all files.
inline std::vector<Case> readAllCases() {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(FERNWICK_SOURCE_DIR "/tests/language/programs"))
        if (entry.path().extension() == ".txt") paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::vector<Case> all;
    for (const auto& path : paths) {
        auto cases = readCases(path);
        all.insert(all.end(), std::make_move_iterator(cases.begin()), std::make_move_iterator(cases.end()));
    }
    return all;
}

/// A file of a program, and how many lines precede those of the case.
struct SourceFile {
    std::string name, text;
    std::uint32_t linesBefore = 0;
};

inline SourceFile moduleOf(const std::string& name, std::string_view attributes = "") {
    SourceFile file{name + ".bas", "Attribute VB_Name = \"" + name + "\"\n", 1};
    file.text += attributes;
    return file;
}

inline SourceFile classOf(const std::string& name) {
    return {name + ".cls",
            "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1\nEND\nAttribute VB_Name = \"" + name +
                "\"\nAttribute VB_GlobalNameSpace = False\nAttribute VB_Creatable = True\n"
                "Attribute VB_PredeclaredId = False\nAttribute VB_Exposed = True\n",
            9};
}

/// The files of a case: its modules, or a module whose Sub Main has its statements.
inline std::vector<SourceFile> filesOf(const Case& one) {
    std::vector<SourceFile> files;
    if (!one.code.starts_with("[")) {
        files.push_back(moduleOf("Module1"));
        files[0].text += "Sub Main()\n" + one.code + "End Sub\n";
        files[0].linesBefore = 2;
        return files;
    }
    std::istringstream code(one.code);
    for (std::string line; std::getline(code, line);) {
        if (line.starts_with("[module ") && line.ends_with("]"))
            files.push_back(moduleOf(line.substr(8, line.size() - 9)));
        else if (line.starts_with("[class ") && line.ends_with("]"))
            files.push_back(classOf(line.substr(7, line.size() - 8)));
        else
            files.back().text += line + "\n";
    }
    return files;
}

} // namespace language_programs
