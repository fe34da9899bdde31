#pragma once
// Maps effects on the host's bars to steps of the add-in, so that a trace has one line for each step instead of
// hundreds of effects.
#include <map>
#include <string>

namespace test {

/// Returns the step that begins with this effect; "" for its further effects. Effects on toolbars begin with "bar ".
inline std::string barStep(const std::string& effect) {
    static const std::map<std::string, std::string> steps{
        {"bar Menu Bar: + popup before 3", "menu"},
        {"Compile and Validate: enabled", "enable menu"},
        {"Compile and Validate: disabled", "disable menu"},
        {"Compile and Validate: deleted", "remove menu"},
        {"bar Fernwick at 1", "toolbar"},
        {"bar Fernwick: enabled", "enable toolbar"},
        {"bar Fernwick: disabled", "disable toolbar"},
        {"bar Fernwick: deleted", "remove toolbar"},
        {"bar Quinloft Utilities at 1", "support toolbar"},
        {"bar Quinloft Utilities: enabled", "enable support toolbar"},
        {"bar Quinloft Utilities: disabled", "disable support toolbar"},
        {"bar Quinloft Utilities: deleted", "remove support toolbar"},
        {"bar Quinloft Utilities: position 1", "restore toolbars"},
        {"Save: executed", "host: save project"},
        {"Remove: executed", "host: remove project"},
        {"Fernwick Project Converter: executed", "host: import"},
        {"?: tip Deploy to ", "default target "},
    };
    constexpr std::string_view target = "?: tip Deploy to &";
    if (effect.starts_with(target)) return "default target " + effect.substr(target.size());
    const auto step = steps.find(effect);
    return step == steps.end() ? "" : step->second;
}

} // namespace test
