#include "Host/system/screen.h"

namespace host {

bool Screen::FontFamilyExists(const std::string& name) const {
    if (!families_) families_ = installedFontFamilies();
    return families_->contains(name);
}

} // namespace host
