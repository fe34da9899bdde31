// Parses all source files in folders and prints the diagnostics. Used with real code, where each diagnostic is either a
// damaged file or a bug in the parser.
//   check_corpus CODEPAGE FOLDER_OR_FILE...        exit status 1 if there are errors
#include "Components/QLToolkit/check.h"
#include "Host/files/text_file.h"
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

struct Totals {
    std::size_t files = 0, lines = 0, errors = 0;
};

void checkOne(const std::string& path, const basic::CodePage& page, Totals& totals) {
    if (qltoolkit::fileKindOf(path) == qltoolkit::FileKind::Unknown) return;
    const auto result = qltoolkit::checkSource(path, host::readFile(path).bytes, {}, page);
    ++totals.files;
    totals.lines += result.lines;
    totals.errors += result.errors;
    for (const auto& d : result.diagnostics)
        std::printf("%s:%u:%u: %d %s\n", d.file.c_str(), d.line, d.column, d.number, d.text.c_str());
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: check_corpus CODEPAGE FOLDER_OR_FILE...\n", stderr);
        return 2;
    }
    const basic::CodePage page(std::atoi(argv[1]));
    Totals totals;
    for (int i = 2; i < argc; ++i) {
        if (!std::filesystem::is_directory(argv[i])) {
            checkOne(argv[i], page, totals);
            continue;
        }
        for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[i]))
            if (entry.is_regular_file()) checkOne(entry.path().string(), page, totals);
    }
    std::printf("%zu files, %zu lines, %zu errors\n", totals.files, totals.lines, totals.errors);
    return totals.errors == 0 ? 0 : 1;
}
