#include "Apps/tamarik/headless/arguments.h"
#include "Apps/tamarik/headless/image_run.h"
#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr auto kUse = "Usage: tamarik-headless [OPTION ...] IMAGE [ARGUMENT ...]\n"
                      "       tamarik-headless [OPTION ...] --each IMAGE ...\n"
                      "Runs a compiled application. With --each runs several, each between its name and its status.\n"
                      "  --budget N      stop after about N instructions\n"
                      "  --files FOLDER  what the application's files are in; without it, they are lost at the end\n"
                      "  --seed N        the first number of Rnd's sequence\n"
                      "  --switch        use the portable form of the interpreter\n";

int run(const headless::Arguments& arguments) {
    headless::ImageRun images(arguments);
    if (!arguments.runsEach) return images.run(arguments.images.front(), stderr);
    for (const auto& image : arguments.images) {
        std::printf("=== %s\n", image.c_str());
        const int status = images.run(image, stdout);
        std::printf("--- %d\n", status);
    }
    return headless::kGood;
}

} // namespace

int main(int count, char** words) {
    try {
        const auto arguments = headless::parse(std::vector<std::string>(words + 1, words + count));
        if (arguments) return run(*arguments);
        std::fputs(kUse, stderr);
        return headless::kWrongUse;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tamarik-headless: %s\n", error.what());
        return headless::kMachineTrouble;
    }
}
