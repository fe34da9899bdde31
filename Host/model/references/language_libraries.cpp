#include "Host/model/references/language_libraries.h"
#include <algorithm>

namespace host {

bool isAlwaysKnown(std::string_view guid) noexcept {
    return guid == kStdOle || std::any_of(std::begin(kLanguageLibraries), std::end(kLanguageLibraries),
                                          [&](const auto& library) { return library.guid == guid; });
}

} // namespace host
