#include "Apps/fernwick/output/depfile.h"
#include <algorithm>

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

std::string depfileText(const std::vector<DepfileRule>& rules) {
    std::string text;
    std::vector<std::string> named;
    for (const auto& rule : rules) {
        text += makeName(rule.target) + ":";
        for (const auto& path : rule.prerequisites) {
            text += " \\\n  " + makeName(path);
            if (std::find(named.begin(), named.end(), path) == named.end()) named.push_back(path);
        }
        text += "\n";
    }
    for (const auto& path : named) text += "\n" + makeName(path) + ":\n";
    return text;
}

} // namespace cli
