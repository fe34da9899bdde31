#include "Apps/fernwick/output/depfile.h"

namespace cli {

namespace {

/// Escapes the characters that are special to make.
std::string makeName(const std::string& path) {
    std::string name;
    for (const char c : path) {
        if (c == '$') name += '$';
        if (c == ' ' || c == '#' || c == '\t' || c == ':') name += '\\';
        name += c;
    }
    return name;
}

} // namespace

std::string depfileText(const std::string& target, const std::vector<std::string>& prerequisites) {
    std::string text = makeName(target) + ":";
    for (const auto& path : prerequisites) text += " \\\n  " + makeName(path);
    text += "\n";
    for (const auto& path : prerequisites) text += "\n" + makeName(path) + ":\n";
    return text;
}

} // namespace cli
