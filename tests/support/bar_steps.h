#pragma once
// Which step of the add-in an effect on the host's bars belongs to: one line of a trace for each step, where the effects
// themselves are many.
#include <map>
#include <string>

namespace test {

/// The step that this effect begins; "" for the effects that follow it. Effects on toolbars begin with "bar ".
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
