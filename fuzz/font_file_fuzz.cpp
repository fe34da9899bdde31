// Headers of converted fonts: for any bytes the face is a short name, and bytes after the header are ignored.
#include "Add-in/build/dependencies/font_file.h"
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto font = fernwick::readFontHead(bytes);
    constexpr std::size_t kLongestFace = 32 * 3; // at most three UTF-8 bytes for each byte
    if (font.name.size() > kLongestFace || font.name.find('\0') != std::string::npos) std::abort();
    if (font.size < 0 || font.size > 510 || font.style < 0 || font.style > 255) std::abort();
    if (fernwick::readFontHead(bytes.substr(0, fernwick::kFontHeadBytes)) != font) std::abort();
    (void)fernwick::GetFontFileName(font);
    return 0;
}
