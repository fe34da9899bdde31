// Manifests of packages: accepted manifests round-trip.
#include "Components/QLPipe/package/bundle.h"
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto bundle = qlpipe::readManifest({reinterpret_cast<const char*>(data), size});
        const auto text = qlpipe::writeManifest(bundle);
        require(qlpipe::writeManifest(qlpipe::readManifest(text)) == text);
    } catch (const qlpipe::ManifestProblem& refused) {
        require(!refused.what.empty() || refused.kind == refused.UnsafeName);
    }
    return 0;
}
