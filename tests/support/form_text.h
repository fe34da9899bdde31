#pragma once
// Forms with device controls, as the designer writes them.
#include <fmt/format.h>
#include <string>
#include <vector>

namespace test {

/// A control's default font is 12 points, regular.
struct FormControl {
    std::string className, name, font;
    int style = 0, size = 12;
};

/// Returns the text of a form that devices accept unchanged, except for the lines in `changed` ("ScaleMode = 1").
inline std::string deviceForm(const std::string& name, const std::vector<FormControl>& controls,
                              const std::string& code = {}, const std::vector<std::string>& changed = {}) {
    std::string text = "VERSION 5.00\r\nBegin VB.Form " + name + " \r\n";
    for (std::string line : {"BorderStyle = 1", "ScaleMode = 3", "StartUpPosition = 2"}) {
        for (const auto& change : changed)
            if (change.substr(0, change.find(' ')) == line.substr(0, line.find(' '))) line = change;
        text += "   " + line + "\r\n";
    }
    for (const auto& control : controls)
        text += fmt::format("   Begin TavletsCtl.{} {} \r\n      FontName = \"{}\"\r\n      FontSize = {}\r\n"
                            "      FontStyle = {}\r\n   End\r\n",
                            control.className, control.name, control.font, control.size, control.style);
    return text + "End\r\nAttribute VB_Name = \"" + name + "\"\r\n" + code;
}

} // namespace test
