// Checks the syntax, names and types of files as one project, and with --image also makes its code and writes the image.
// Usage: check_bench [--threads N] [--image PATH] FILE...; the status is 1 if there are errors, since that would distort the
// measurement.
#include "Apps/common/process_memory.h"
#include "Components/Image/image.h"
#include "Components/QLToolkit/check.h"
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <sys/resource.h>

int main(int argc, char** argv) {
    apps::keepFreedMemory(); // as fernwick does
    qltoolkit::ProgramOptions options;
    std::vector<std::unique_ptr<qltoolkit::SourceText>> sources;
    std::size_t bytes = 0;
    const char* imagePath = nullptr;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--threads") == 0 && i + 1 < argc) {
            options.threads = static_cast<unsigned>(std::atoi(argv[++i]));
            continue;
        }
        if (std::strcmp(argv[i], "--image") == 0 && i + 1 < argc) {
            imagePath = argv[++i];
            continue;
        }
        std::ifstream file(argv[i], std::ios::binary | std::ios::ate);
        std::string text(static_cast<std::size_t>(file.tellg()), '\0');
        file.seekg(0);
        file.read(text.data(), static_cast<std::streamsize>(text.size()));
        bytes += text.size();
        sources.push_back(std::make_unique<qltoolkit::SourceText>(argv[i], std::move(text)));
    }
    std::vector<const qltoolkit::SourceText*> all;
    for (const auto& source : sources) all.push_back(source.get());
    unsigned long errors = 0, lines = 0;
    auto made = imagePath ? qltoolkit::compileProject(all, {}, options, {"Main", 1252})
                          : qltoolkit::CompiledProject{qltoolkit::checkProject(all, {}, options), {}, {}};
    if (made.code) {
        image::Image whole;
        whole.code = std::move(*made.code);
        std::ofstream(imagePath, std::ios::binary) << image::encode(whole);
    }
    for (const auto& result : made.results) {
        errors += result.errors;
        lines += result.lines;
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf(R"({"lines": %lu, "errors": %lu, "source_bytes": %zu, "peak_bytes": %ld})"
                "\n",
                lines, errors, bytes, usage.ru_maxrss * 1024L);
    return errors == 0 ? 0 : 1;
}
