// Parses files and prints the time.
// Usage: parser_bench [--json] FILE...; the status is 1 if a file has errors, since that would distort the measurement.
#include "Apps/common/process_memory.h"
#include "Components/QLToolkit/parser/parse.h"
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sys/resource.h>

namespace {

struct Measured {
    double seconds = 0;
    unsigned long lines = 0, errors = 0;
    std::size_t sourceBytes = 0, treeBytes = 0;
};

void measure(const char* path, qltoolkit::SymbolTable& symbols, Measured& total) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(file.tellg()) + qltoolkit::SourceText::kPadding);
    bytes.resize(static_cast<std::size_t>(file.tellg()));
    file.seekg(0);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    const auto start = std::chrono::steady_clock::now();
    const qltoolkit::SourceText source{path, std::move(bytes)};
    const auto parsed = qltoolkit::parseModule(source, symbols);
    total.seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    total.lines += source.lineCount();
    total.errors += parsed.errors;
    total.sourceBytes += source.size();
    if (parsed.module) total.treeBytes += parsed.module->arena.footprint();
}

} // namespace

int main(int argc, char** argv) {
    apps::keepFreedMemory(); // as fernwick does: memory of one module is used again for the next
    qltoolkit::SymbolTable symbols;
    Measured total;
    bool json = false;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--json") == 0)
            json = true;
        else
            measure(argv[i], symbols, total);
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const char* format =
        json ? R"({"lines": %lu, "seconds": %.9f, "source_bytes": %zu, "tree_bytes": %zu, "peak_bytes": %ld})"
               "\n"
             : "%lu lines, %.6f s, %zu bytes, tree %zu bytes, peak %ld bytes\n";
    std::printf(format, total.lines, total.seconds, total.sourceBytes, total.treeBytes, usage.ru_maxrss * 1024L);
    return total.errors == 0 ? 0 : 1;
}
