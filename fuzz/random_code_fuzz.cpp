// Generated programs are accepted and survive a round trip. One word of them is changed then: whatever the verifier says of
// it, it must not read beside the code.
#include "Components/Image/image.h"
#include "Components/Image/listing/disassemble.h"
#include "fuzz/repaired_header.h"
#include "tests/support/random_code.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::size_t at = 0;
    // After the data the numbers go round, so that a short input makes a whole program.
    const auto next = [&](std::uint32_t limit) {
        std::uint32_t number = 0;
        for (int i = 0; i < 2 && size > 0; ++i, ++at)
            number = number << 8 | ((data[at % size] + std::uint32_t(at / size)) & 0xFF);
        return number % limit;
    };
    image::Image image;
    image.code = support::RandomCode(next).make();
    fuzz::require(!image::verify(image.code));
    const auto bytes = image::encode(image);
    const auto decoded = image::decode(bytes);
    fuzz::require(decoded == image && image::encode(decoded) == bytes);
    auto& words = image.code.code;
    words[next(std::uint32_t(words.size()))] ^= 1U << next(32);
    (void)image::verify(image.code);
    (void)image::disassemble(image.code, next(std::uint32_t(image.code.procedures.size())));
    return 0;
}
