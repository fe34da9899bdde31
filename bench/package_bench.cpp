// Packs a folder as an application. Usage: package_bench FOLDER TARGET; creates TARGET/Hello.PocketPC-ARM.qlpkg.
#include "Components/QLPipe/base/device_storage.h"
#include "Components/QLPipe/package/package_writer.h"
#include <algorithm>
#include <cstdio>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

qlpipe::Bundle bundleOf(const fs::path& folder) {
    qlpipe::Bundle bundle;
    bundle.project = "Hello";
    bundle.device = "PocketPC-ARM";
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        const auto path = entry.path().string();
        const auto size = std::int64_t(entry.file_size());
        bundle.files.push_back({qlpipe::FileKind::File,
                                qlpipe::kFilesFolder + fs::relative(entry.path(), folder).generic_string(),
                                size,
                                {},
                                [path, size] { return std::make_unique<qlpipe::LocalFile>(path, size); }});
    }
    std::sort(bundle.files.begin(), bundle.files.end(), [](const auto& a, const auto& b) { return a.place < b.place; });
    return bundle;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::fputs("usage: package_bench FOLDER PLACE\n", stderr);
        return 2;
    }
    const auto bundle = bundleOf(arguments[1]);
    try {
        qlpipe::writePackage((fs::path(arguments[2]) / qlpipe::packageName(bundle)).string(), bundle, nullptr);
    } catch (const qlpipe::TransferError& error) {
        std::fprintf(stderr, "%s\n", error.text.c_str());
        return 1;
    }
}
