#pragma once
// The installation tree in the repository, read as text.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace installed {

inline const std::string kRoot = FERNWICK_SOURCE_DIR "/installation";

inline std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

inline std::string content(const std::filesystem::path& path) {
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

inline std::vector<std::filesystem::path> filesOf(const std::string& folder, const std::string& extension) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator{folder})
        if (entry.path().extension() == extension) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

/// Returns the texts after each `prefix`, up to one of the `stops`.
inline std::vector<std::string> textsAfter(const std::string& text, const std::string& prefix, const char* stops) {
    std::vector<std::string> found;
    for (auto at = text.find(prefix); at != std::string::npos; at = text.find(prefix, at)) {
        at += prefix.size();
        found.push_back(text.substr(at, text.find_first_of(stops, at) - at));
    }
    return found;
}

/// Returns the text with each `from` replaced.
inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

/// Returns whether a path with "\" or "/" exists in `root`, regardless of case.
inline bool leadsSomewhere(std::filesystem::path root, std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    std::istringstream parts{path};
    for (std::string part; std::getline(parts, part, '/');) {
        if (part.empty()) continue;
        if (!std::filesystem::is_directory(root)) return false;
        const std::filesystem::directory_iterator entries{root};
        const auto found = std::find_if(begin(entries), end(entries), [&](const auto& entry) {
            return lower(entry.path().filename().string()) == lower(part);
        });
        if (found == end(entries)) return false;
        root = found->path();
    }
    return std::filesystem::exists(root);
}

using Values = std::map<std::string, std::string>;

/// Returns keys in lower case, with their values by name in lower case; "@" is the default value. Supports only
/// strings, because the shipped .reg files contain nothing else.
inline std::map<std::string, Values> registered() {
    std::map<std::string, Values> keys;
    for (const auto& path : filesOf(kRoot + "/registry", ".reg")) {
        std::istringstream lines{content(path)};
        std::string key;
        for (std::string line; std::getline(lines, line);) {
            if (!line.empty() && line.back() == '\r') line.pop_back();
            if (line.starts_with('[')) keys[key = lower(line.substr(1, line.size() - 2))];
            const auto equals = line.find('=');
            if (line.starts_with('[') || equals == std::string::npos) continue;
            const std::string name = line[0] == '@' ? "@" : line.substr(1, equals - 2);
            keys[key][lower(name)] = line.substr(equals + 2, line.size() - equals - 3);
        }
    }
    return keys;
}

/// Returns a registered path inside the root, without the root.
inline std::string belowRoot(const std::string& registeredPath) {
    static const std::string kPlaceholder = "%RootDir%/";
    return registeredPath.starts_with(kPlaceholder) ? registeredPath.substr(kPlaceholder.size()) : "not below the root";
}

} // namespace installed
