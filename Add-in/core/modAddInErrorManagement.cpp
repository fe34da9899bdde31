#include "Add-in/core/modAddInErrorManagement.h"
#include "Add-in/core/core_texts.h"
#include "Add-in/core/error_source.h"
#include <fmt/format.h>

namespace fernwick {

void modAddInErrorManagement::Error_ShowAddInError(const std::string& location, const basic::RuntimeError& error) {
    using namespace fmt::literals;
    ++reports_;
    user_.MsgBox(fmt::format(texts::kErrorReport, "location"_a = location, "source"_a = errorSource(error.Source, app_),
                             "number"_a = error.Number, "description"_a = error.Description,
                             "lastDllError"_a = error.LastDllError, "supportAddress"_a = app_.SupportWebAddress),
                 vbCritical, std::string(texts::kFernwick));
}

void modAddInErrorManagement::Error_SetCurrentLocation(std::string) const {}

} // namespace fernwick
