// How fast code is verified, beside sha256sum of the same image, in processor time: verify_bench [MEGABYTES]
#include "Components/Image/image.h"
#include "Components/Image/verify/verify.h"
#include "tests/support/random_code.h"
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sys/resource.h>

namespace {

/// The processor time that this process, or the ones that it waited for, have used.
double processorTime(int of) {
    rusage used{};
    getrusage(of, &used);
    const auto seconds = [](const timeval& time) { return double(time.tv_sec) + double(time.tv_usec) * 1e-6; };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

double seconds(const auto& work, int of = RUSAGE_SELF) {
    double best = 1e9;
    for (int i = 0; i < 9; ++i) {
        const auto begin = processorTime(of);
        work();
        best = std::min(best, processorTime(of) - begin);
    }
    return best;
}

/// A program whose procedures are repeated until it is large.
image::Image largeImage(std::size_t bytes) {
    std::mt19937 numbers(1);
    const support::RandomCode::Functions functions{
        {"Left", {{image::BaseType::Text}, {{image::BaseType::Text}, {image::BaseType::Long}}}}};
    image::Image image;
    image.code = support::RandomCode([&](std::uint32_t limit) { return numbers() % limit; }, functions).make();
    auto& code = image.code;
    const auto first = code.procedures;
    const auto words = code.code;
    while (4 * code.code.size() < bytes) {
        for (auto procedure : first) {
            procedure.code = std::uint32_t(procedure.code + code.code.size());
            code.procedures.push_back(procedure);
        }
        code.code.insert(code.code.end(), words.begin(), words.end());
    }
    return image;
}

} // namespace

int main(int argc, char** argv) {
    const auto image = largeImage(std::size_t(argc > 1 ? std::atoi(argv[1]) : 16) << 20);
    const auto bytes = image::encode(image);
    const auto path = std::filesystem::temp_directory_path() / "verify_bench.qlx";
    std::ofstream(path, std::ios::binary) << bytes;
    const auto verified = seconds([&] {
        if (const auto problem = image::verify(image.code)) {
            std::puts(problem->text.c_str());
            std::exit(1);
        }
    });
    const auto decoded = seconds([&] { (void)image::decode(bytes); });
    const auto command = "sha256sum " + path.string() + " >/dev/null";
    const auto hashed = seconds(
        [&] {
            if (std::system(command.c_str()) != 0) std::exit(1);
        },
        RUSAGE_CHILDREN);
    std::filesystem::remove(path);
    std::printf("image      %7.1f MB, %zu procedures, %.1f MB of code\n", double(bytes.size()) / 1e6,
                image.code.procedures.size(), double(image.code.code.size()) * 4 / 1e6);
    std::printf("verify     %7.1f ms, %.0f MB/s\n", verified * 1e3, double(bytes.size()) / 1e6 / verified);
    std::printf("decode     %7.1f ms\n", decoded * 1e3);
    std::printf("sha256sum  %7.1f ms, verify takes %.2f of it\n", hashed * 1e3, verified / hashed);
}
