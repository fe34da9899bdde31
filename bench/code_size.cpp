// How many bytes of code the compiler makes of a line that is neither blank nor a comment.
// Usage: code_size [--spent] FOLDER...
// Compiles each project below the folders that has no errors and prints the bytes that its standard modules and classes have in
// CODE, LINE, STMT and CONS. A module that several projects contain is counted once. --spent adds what the words of CODE are
// spent on, by instruction.
#include "Apps/common/checked_project.h"
#include "Apps/fernwick/checks/project_check.h"
#include "Basic/runtime_error.h"
#include "Components/Image/code/instruction.h"
#include "Components/Image/line_bytes.h"
#include "Components/Image/word_bytes.h"
#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <iterator>
#include <set>
#include <string_view>
#include <unordered_set>

namespace {

namespace fs = std::filesystem;

struct Sizes {
    std::size_t modules = 0, projects = 0, lines = 0, words = 0, code = 0, line = 0, statement = 0, constant = 0;
};

using Spent = std::array<std::pair<std::size_t, std::size_t>, image::kInstructionCount>; // instructions, words

bool isCode(std::string_view line) {
    const auto first = line.find_first_not_of(" \t\r");
    if (first == line.npos || line[first] == '\'') return false;
    const auto rest = line.substr(first);
    return !rest.starts_with("Rem ") && !rest.starts_with("Attribute VB_");
}

/// The head of a class or form is no code; it ends with its attributes.
std::size_t linesOf(std::string_view text) {
    auto begin = text.rfind("\nAttribute VB_");
    std::size_t count = 0;
    for (auto at = begin == text.npos ? 0 : begin + 1; at < text.size();) {
        const auto end = std::min(text.find('\n', at), text.size());
        count += isCode(text.substr(at, end - at));
        at = end + 1;
    }
    return count;
}

std::string lowerExtension(const fs::path& path) {
    auto extension = path.extension().string();
    std::ranges::transform(extension, extension.begin(), [](unsigned char c) { return std::tolower(c); });
    return extension;
}

class Measurement {
public:
    void add(const std::string& path) {
        const cli::Options options;
        host::FileContents contents;
        try {
            const auto project = apps::readProject(path, {}, contents);
            const auto compiled = cli::ProjectCheck{options, contents}.compile(project);
            if (compiled.code) add(project.sources, *compiled.code);
        } catch (const basic::RuntimeError&) { // a damaged project file
        }
    }

    void print(bool isSpentShown) const {
        const auto perLine = [&](std::size_t bytes) {
            return double(bytes) / double(std::max<std::size_t>(sizes_.lines, 1));
        };
        fmt::print("{} modules of {} projects, {} lines\n", sizes_.modules, sizes_.projects, sizes_.lines);
        for (const auto& [name, bytes] : {std::pair{"CODE", sizes_.code},
                                          {"LINE", sizes_.line},
                                          {"STMT", sizes_.statement},
                                          {"CONS", sizes_.constant}})
            fmt::print("{} {:9} bytes, {:6.2f} a line\n", name, bytes, perLine(bytes));
        fmt::print("in memory {:4} bytes, {:6.2f} a line\n", 4 * sizes_.words, perLine(4 * sizes_.words));
        if (!isSpentShown) return;
        std::vector<std::size_t> order(image::kInstructionCount);
        for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
        std::ranges::sort(order, [&](std::size_t a, std::size_t b) { return spent_[a].second > spent_[b].second; });
        for (const auto op : order)
            if (spent_[op].first != 0)
                fmt::print("{:24} {:8} times, {:6.3f} bytes a line\n", image::kInstructions[op].name, spent_[op].first,
                           perLine(4 * spent_[op].second));
    }

private:
    void add(const std::vector<std::string>& sources, const image::CodeImage& code) {
        std::vector<bool> counts(code.modules.size());
        for (const auto& source : sources) {
            if (const auto extension = lowerExtension(source); extension != ".bas" && extension != ".cls") continue;
            std::ifstream file(source, std::ios::binary);
            const std::string text{std::istreambuf_iterator<char>(file), {}};
            const auto name = fs::path(source).filename().string();
            const auto module = std::ranges::find_if(
                code.modules, [&](const image::CodeModule& each) { return code.texts[each.file] == name; });
            if (module == code.modules.end() || !seen_.insert(text).second) continue;
            counts[std::size_t(module - code.modules.begin())] = true;
            sizes_.lines += linesOf(text);
            ++sizes_.modules;
        }
        ++sizes_.projects;
        std::vector<image::Procedure> counted;
        std::set<std::uint32_t> begins{std::uint32_t(code.numbers.size())};
        for (const auto& procedure : code.procedures) begins.insert(procedure.numbers);
        std::uint32_t lastNumbers = image::kNone;
        for (const auto& procedure : code.procedures) {
            if (procedure.module >= counts.size() || !counts[procedure.module]) continue;
            counted.push_back(procedure);
            sizes_.words += procedure.words;
            sizes_.code += image::encodeWords({code.code.data() + procedure.code, procedure.words}).size();
            if (procedure.numbers != lastNumbers && procedure.numbers < code.numbers.size())
                sizes_.constant += std::size_t{8} * (*begins.upper_bound(procedure.numbers) - procedure.numbers);
            lastNumbers = procedure.numbers;
            for (std::size_t at = 0; at < procedure.words;) {
                const auto* word = code.code.data() + procedure.code + at;
                const auto length = image::lengthOf(word, procedure.words - at);
                auto& spent = spent_[image::Word{*word}.op];
                ++spent.first;
                spent.second += length;
                at += length;
            }
        }
        sizes_.line += image::encodeLines(counted).size();
        sizes_.statement += image::encodeStatements(counted).size();
    }

    Sizes sizes_;
    Spent spent_{};
    std::unordered_set<std::string> seen_;
};

} // namespace

int main(int argc, char** argv) {
    const bool isSpentShown = argc > 1 && std::strcmp(argv[1], "--spent") == 0;
    std::vector<std::string> projects;
    for (int i = 1 + isSpentShown; i < argc; ++i)
        for (const auto& entry : fs::recursive_directory_iterator(argv[i]))
            if (entry.is_regular_file() && lowerExtension(entry.path()) == ".vbp")
                projects.push_back(entry.path().string());
    if (projects.empty()) {
        std::fputs("usage: code_size [--spent] FOLDER...\n", stderr);
        return 2;
    }
    std::ranges::sort(projects);
    Measurement measurement;
    for (const auto& project : projects) measurement.add(project);
    measurement.print(isSpentShown);
}
