// Resource files of projects: for any bytes, resources are in order and within the bytes, an image keeps them, and texts are
// found in them or not.
#include "Basic/runtime_error.h"
#include "Components/Image/image.h"
#include "Components/QLToolkit/source/res_file.h"
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/values/text_block.h"
#include "fuzz/repaired_header.h"

namespace {

void loadTexts(const image::CodeImage& code) {
    static const auto natives = tamarik::standardNatives();
    const auto& load = natives.find("LoadResString").front();
    tamarik::Session session(1 << 24, {}, 1252);
    for (std::int32_t number = -1; number < 40; ++number) {
        tamarik::Slot argument{};
        argument.number = number;
        tamarik::NativeCall call{session, &argument, {}, nullptr, &code};
        const auto err = basic::attempt([&] { load.call(call); });
        fuzz::require(err.Number == 0 || err.Number == 326);
        if (err.Number == 0) tamarik::release(session.heap, call.result[0].text);
    }
    fuzz::require(session.heap.used() == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    image::Image image;
    image.code.codePage = 1252;
    try {
        image.code.resources = qltoolkit::readResources({reinterpret_cast<const char*>(data), size});
    } catch (const basic::RuntimeError& refused) {
        fuzz::require(refused.Number == 321);
        return 0;
    }
    std::size_t bytes = 0;
    for (const auto& resource : image.code.resources) bytes += resource.data.size();
    fuzz::require(bytes <= size && image::areInOrder(image.code.resources));
    fuzz::require(image::decode(image::encode(image)) == image);
    loadTexts(image.code);
    return 0;
}
