// Untrusted images: an accepted one round-trips; a refused one has a reason.
#include "Basic/runtime_error.h"
#include "Components/Image/image.h"
#include "fuzz/repaired_header.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using fuzz::require;
    try {
        const auto image = image::decode(fuzz::withHeader({reinterpret_cast<const char*>(data), size}));
        require(image::decode(image::encode(image)) == image);
    } catch (const basic::RuntimeError& refused) { require(refused.Number == 321 && !refused.Description.empty()); }
    return 0;
}
