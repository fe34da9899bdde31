#include "Host/system/screen.h"
#include <dlfcn.h>
#include <fontconfig/fontconfig.h>
#include <memory>

namespace host {
namespace {

/// A function of Fontconfig. The library is loaded when the first font is needed: few runs need one, and linking it
/// would add a third to the start time of every run.
template <class Function>
Function* fontconfigFunction(void* library, const char* name) {
    return library ? reinterpret_cast<Function*>(::dlsym(library, name)) : nullptr;
}

struct Fontconfig {
    void* library = ::dlopen("libfontconfig.so.1", RTLD_NOW | RTLD_LOCAL);
    decltype(&FcInitLoadConfigAndFonts) load =
        fontconfigFunction<decltype(FcInitLoadConfigAndFonts)>(library, "FcInitLoadConfigAndFonts");
    decltype(&FcConfigGetFonts) fonts = fontconfigFunction<decltype(FcConfigGetFonts)>(library, "FcConfigGetFonts");
    decltype(&FcPatternGetString) text =
        fontconfigFunction<decltype(FcPatternGetString)>(library, "FcPatternGetString");
    decltype(&FcConfigDestroy) destroy = fontconfigFunction<decltype(FcConfigDestroy)>(library, "FcConfigDestroy");

    bool isLoaded() const { return load && fonts && text && destroy; }
};

void addFamilies(const Fontconfig& fontconfig, const FcFontSet* fonts, FontFamilies& to) {
    for (int i = 0; fonts && i < fonts->nfont; ++i) {
        FcChar8* family = nullptr; // in several languages
        for (int n = 0; fontconfig.text(fonts->fonts[i], FC_FAMILY, n, &family) == FcResultMatch; ++n)
            to.insert(reinterpret_cast<const char*>(family));
    }
}

} // namespace

FontFamilies installedFontFamilies() {
    FontFamilies families;
    const Fontconfig fontconfig;
    if (!fontconfig.isLoaded()) return families;
    const std::unique_ptr<FcConfig, decltype(&FcConfigDestroy)> config(fontconfig.load(), fontconfig.destroy);
    if (!config) return families;
    for (const auto set : {FcSetSystem, FcSetApplication})
        addFamilies(fontconfig, fontconfig.fonts(config.get(), set), families);
    return families;
}

} // namespace host
