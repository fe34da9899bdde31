#include "Add-in/core/modAddInErrorManagement.h"
#include "Add-in/core/core_texts.h"
#include <fmt/format.h>

namespace fernwick {

namespace {
/// The source of an error that no component has put its name to: it is ours.
const std::string kUnnamedSource = basic::RuntimeError(basic::kInvalidProcedureCall).Source;
} // namespace

void modAddInErrorManagement::Error_ShowAddInError(const std::string& location, const basic::RuntimeError& error) {
    using namespace fmt::literals;
    const auto& source = error.Source == kUnnamedSource ? app_.Title : error.Source;
    user_.MsgBox(fmt::format(texts::kErrorReport, "location"_a = location, "source"_a = source,
                             "number"_a = error.Number, "description"_a = error.Description,
                             "lastDllError"_a = error.LastDllError, "supportAddress"_a = app_.SupportWebAddress),
                 vbCritical, std::string(texts::kFernwick));
}

void modAddInErrorManagement::Error_SetCurrentLocation(std::string) const {}

} // namespace fernwick
