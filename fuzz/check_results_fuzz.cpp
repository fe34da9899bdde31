// Stored results of checks.
#include "Components/QLToolkit/check_results.h"
#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes{reinterpret_cast<const char*>(data), size};
    const auto results = qltoolkit::resultsOf(bytes);
    if (results && qltoolkit::bytesOf(*results) != bytes) std::abort();
    return 0;
}
