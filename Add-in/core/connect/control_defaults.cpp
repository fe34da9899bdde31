#include "Add-in/core/connect/control_defaults.h"
#include "Basic/conversions.h"
#include "Basic/number_text.h"
#include "Basic/runtime_error.h"
#include "Basic/text.h"

namespace fernwick {

namespace {

/// A number after "#" is a Long. Other texts stay as they are, as does a number that is too large.
Variant valueOf(const std::string& text) {
    if (!text.starts_with('#') || !basic::IsNumeric(text.substr(1))) return text;
    Variant value = text;
    (void)basic::attempt([&] { value = basic::CLng(text.substr(1)); });
    return value;
}

} // namespace

std::vector<tPropertyDefault> GetControlDefaults(const std::string& name,
                                                 const designtargetaccess::IQLDesignTarget& designTarget,
                                                 ErrorReport& errors) {
    Procedure here{errors, "Connect.GetControlDefaults"};
    std::vector<tPropertyDefault> list;
    std::vector<std::string> names, values;
    if (here.test([&] { return designTarget.NumPropertyDefaults() <= 0; })) return list;
    here([&] { designTarget.GetPropertyDefaults(names, values); });
    const auto prefix = basic::LCase(name + '.');
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!basic::LCase(names[i]).starts_with(prefix)) continue;
        here([&] {
            if (i >= values.size()) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
            list.push_back({names[i].substr(names[i].find('.') + 1), valueOf(values[i])});
        });
    }
    return list;
}

} // namespace fernwick
