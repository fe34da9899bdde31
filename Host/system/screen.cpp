#include "Host/system/screen.h"
#include "Basic/case_folding.h"
#include <fontconfig/fontconfig.h>
#include <memory>

namespace host {
namespace {

template <auto Release>
struct FontconfigRelease {
    template <class T>
    void operator()(T* what) const {
        Release(what);
    }
};
template <class T, auto Release>
using FontconfigOwned = std::unique_ptr<T, FontconfigRelease<Release>>;

/// A font has its family's name in several languages; each of them counts.
bool hasFamilyName(FcPattern* font, const std::string& name) {
    FcChar8* family = nullptr;
    for (int n = 0; FcPatternGetString(font, FC_FAMILY, n, &family) == FcResultMatch; ++n)
        if (basic::equalNoCase(reinterpret_cast<const char*>(family), name)) return true;
    return false;
}

} // namespace

bool Screen::FontFamilyExists(const std::string& name) const {
    // Listing, unlike matching, never answers with a substitute.
    const FontconfigOwned<FcConfig, FcConfigDestroy> config(FcInitLoadConfigAndFonts());
    const FontconfigOwned<FcPattern, FcPatternDestroy> all(FcPatternCreate());
    const FontconfigOwned<FcObjectSet, FcObjectSetDestroy> wanted(FcObjectSetBuild(FC_FAMILY, nullptr));
    if (!config || !all || !wanted || name.empty()) return false;
    FcPatternAddString(all.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(name.c_str()));
    const FontconfigOwned<FcFontSet, FcFontSetDestroy> fonts(FcFontList(config.get(), all.get(), wanted.get()));
    for (int i = 0; fonts && i < fonts->nfont; ++i)
        if (hasFamilyName(fonts->fonts[i], name)) return true;
    return false;
}

} // namespace host
