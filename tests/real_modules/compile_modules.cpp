// Compiles projects, forms included, and single modules to code, and verifies it. Writes rows of fields separated by tabs:
//   input, "code", number of procedures
//   input, "error", file, line, number, text
//   input, "refused", reason
// Usage: compile_modules [--incomplete [--without FILE]...] INPUT...
// With --incomplete, names that are not found may be declared in what is missing; --without leaves a file out.
#include "Apps/common/checked_program.h"
#include "Apps/common/installation.h"
#include "Basic/runtime_error.h"
#include "Components/Image/image.h"
#include "Components/Image/verify/verify.h"
#include "Host/files/text_file.h"
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace {

using Row = std::vector<std::string>;

struct Parts {
    bool isIncomplete = false;
    std::vector<std::string> without;
};

/// Texts of messages can quote the source.
std::string oneField(std::string text) {
    for (char& c : text)
        if (c == '\t' || c == '\n' || c == '\r') c = ' ';
    return text;
}

void print(const Row& row) {
    for (std::size_t i = 0; i < row.size(); ++i) std::printf("%s%s", i == 0 ? "" : "\t", oneField(row[i]).c_str());
    std::printf("\n");
}

apps::CheckedProject projectOf(const std::string& path, host::FileContents& contents) {
    if (qltoolkit::fileKindOf(path) == qltoolkit::FileKind::Unknown) return apps::readProject(path, {}, contents);
    apps::CheckedProject project;
    project.path = path;
    project.sources.push_back(path);
    return project;
}

/// Null for a source that is left out or cannot be read.
std::unique_ptr<qltoolkit::SourceText> readSource(const std::string& path, const apps::CheckedProject& project,
                                                  const Parts& parts, host::FileContents& contents) {
    if (std::find(parts.without.begin(), parts.without.end(), path) != parts.without.end()) return nullptr;
    std::unique_ptr<qltoolkit::SourceText> text;
    const auto err = basic::attempt(
        [&] { text = std::make_unique<qltoolkit::SourceText>(path, contents.take(path).bytes, project.page.page); });
    if (err.Number != 0) print({project.path, "error", path, "0", "1000", err.Description});
    return text;
}

/// Prints the errors; true if there are any.
bool printErrors(const std::string& input, const std::vector<qltoolkit::CheckResult>& results) {
    bool hasErrors = false;
    for (const auto& result : results)
        for (const auto& found : result.diagnostics) {
            if (found.severity != qltoolkit::Severity::Error) continue;
            hasErrors = true;
            print({input, "error", found.file, std::to_string(found.line), std::to_string(found.number), found.text});
        }
    return hasErrors;
}

void printCode(const std::string& input, image::CodeImage made) {
    image::Image whole;
    whole.code = std::move(made);
    const auto code = image::decode(image::encode(whole)).code;
    if (const auto problem = image::verify(code))
        print({input, "refused", problem->text});
    else
        print({input, "code", std::to_string(code.procedures.size())});
}

void compile(const std::string& input, const Parts& parts, apps::DescribedLibraries& libraries) {
    host::FileContents contents;
    const auto project = projectOf(input, contents);
    std::vector<std::unique_ptr<qltoolkit::SourceText>> owned;
    std::vector<const qltoolkit::SourceText*> sources;
    for (const auto& path : project.sources)
        if (auto text = readSource(path, project, parts, contents))
            sources.push_back(owned.emplace_back(std::move(text)).get());
    const bool isWhole = !parts.isIncomplete && sources.size() == project.sources.size();
    auto options = apps::programOf(project, libraries, isWhole);
    options.threads = 1;
    auto made = qltoolkit::compileProject(sources, project.constants, options,
                                          {"Main", static_cast<std::uint32_t>(project.page.page.number())});
    if (printErrors(input, made.results)) return;
    made.code ? printCode(input, std::move(*made.code)) : print({input, "refused", "no code"});
}

} // namespace

int main(int count, char** arguments) {
    apps::DescribedLibraries libraries(FERNWICK_SOURCE_DIR "/installation");
    Parts parts;
    for (int i = 1; i < count; ++i) {
        if (std::strcmp(arguments[i], "--without") == 0 && i + 1 < count) {
            parts.without.emplace_back(arguments[++i]);
            continue;
        }
        if (std::strcmp(arguments[i], "--incomplete") == 0) {
            parts.isIncomplete = true;
            continue;
        }
        try {
            compile(arguments[i], parts, libraries);
        } catch (const std::exception& error) { print({arguments[i], "refused", error.what()}); }
    }
}
