// Untrusted code: it is verified and shown, whatever it is.
#include "Basic/runtime_error.h"
#include "Components/Image/image.h"
#include "Components/Image/listing/disassemble.h"
#include "Components/Image/verify/verify.h"
#include "fuzz/repaired_header.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto image = image::decode(fuzz::withHeader({reinterpret_cast<const char*>(data), size}));
        const auto problem = image::verify(image.code);
        fuzz::require(!problem || !problem->text.empty());
        for (std::uint32_t i = 0; i < image.code.procedures.size() && i < 100; ++i) {
            const auto text = image::disassemble(image.code, i);
            fuzz::require(text.find('\x1B') == std::string::npos);
        }
    } catch (const basic::RuntimeError& refused) { fuzz::require(refused.Number == 321); }
    return 0;
}
