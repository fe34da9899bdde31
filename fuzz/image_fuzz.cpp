// Untrusted images: an accepted one round-trips; a refused one has a reason.
#include "Basic/runtime_error.h"
#include "Components/Image/image.h"
#include "Components/Image/image_bytes.h"
#include "Components/Image/image_format.h"
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

/// Corrects length and checksum; otherwise the rest would hardly be reached.
std::string withHeader(std::string bytes) {
    if (bytes.size() < image::kHeaderSize) return bytes;
    image::Writer header;
    header.u32(std::uint32_t(bytes.size()));
    header.u32(image::crc32(std::string_view(bytes).substr(image::kHeaderSize)));
    return bytes.replace(8, header.bytes().size(), header.bytes());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto image = image::decode(withHeader({reinterpret_cast<const char*>(data), size}));
        require(image::decode(image::encode(image)) == image);
    } catch (const basic::RuntimeError& refused) { require(refused.Number == 321 && !refused.Description.empty()); }
    return 0;
}
