// .reg files: accepted files round-trip in both encodings.
#include "Basic/runtime_error.h"
#include "Host/registry/reg_text.h"
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

bool sameRegInstructions(const std::vector<host::RegInstruction>& a, const std::vector<host::RegInstruction>& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a[i].kind != b[i].kind || a[i].key != b[i].key || a[i].name != b[i].name || a[i].value != b[i].value)
            return false;
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const auto read = host::readRegText(bytes, "fuzz.reg");
        for (const auto encoding : {host::RegTextEncoding::Utf16, host::RegTextEncoding::Utf8})
            if (!sameRegInstructions(host::readRegText(host::writeRegText(read, encoding), "back.reg"), read))
                std::abort();
    } catch (const basic::RuntimeError& refused) {
        if (refused.Number != 321 || !refused.Description.starts_with("fuzz.reg:")) std::abort();
    }
    return 0;
}
