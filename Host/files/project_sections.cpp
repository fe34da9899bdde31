// The sections of a project file.
#include "Basic/case_folding.h"
#include "Host/files/project_file.h"
#include "Host/files/project_line.h"
#include "Host/files/system_error.h"
#include "Host/files/text_parts.h"
#include <algorithm>
#include <fmt/format.h>

namespace host {
namespace {

void refuseUnreadableName(std::string_view section, std::string_view key) {
    const bool unreadable = trimBlanks(section).empty() || trimBlanks(key).empty() ||
                            key.find('=') != std::string_view::npos || trimBlanks(key).front() == '[';
    if (unreadable)
        throw hostError(basic::kInvalidProcedureCall,
                        fmt::format("A project file cannot hold the key \"{}\" of section \"{}\"", key, section));
}

/// Replaces the text after "=". Returns false if it is the same.
bool replaceValue(std::string& line, std::string_view value) {
    const auto from = line.find('=') + 1;
    if (std::string_view(line).substr(from) == value) return false;
    line.replace(from, std::string::npos, value);
    return true;
}

} // namespace

std::string ProjectFile::readProperty(std::string_view section, std::string_view key) const {
    if (const auto found = sections_.find(basic::foldCase(trimBlanks(section))); found != sections_.end())
        if (const auto value = found->second.values.find(basic::foldCase(trimBlanks(key)));
            value != found->second.values.end())
            return codePage_.decode(valueOf(*value->second));
    throw hostError(basic::kInvalidProcedureCall);
}

/// Returns a section. Appends it if it does not exist.
ProjectFile::Section& ProjectFile::sectionNamed(std::string_view section) {
    const auto head = codePage_.encode(fmt::format("[{}]", section));
    auto key = basic::foldCase(trimBlanks(section));
    if (const auto found = sections_.find(key); found != sections_.end()) return found->second;
    const auto place = appendSection(head);
    return sections_.emplace(std::move(key), Section{place, {}}).first->second;
}

bool ProjectFile::writeProperty(std::string_view section, std::string_view key, std::string_view value) {
    refuseLineBreak(section);
    refuseUnreadableName(section, key);
    auto line = lineOf(key, value);
    auto& [last, values] = sectionNamed(section);
    if (const auto old = values.find(basic::foldCase(trimBlanks(key))); old != values.end())
        return replaceValue(old->second->text, std::string_view(line).substr(line.find('=') + 1));
    last = insertAfter(last, std::move(line));
    values.emplace(basic::foldCase(trimBlanks(key)), last);
    return true;
}

std::string ProjectFile::storableText(std::string_view text) const {
    auto storable = codePage_.replaceMissing(text);
    std::replace_if(
        storable.begin(), storable.end(), [](char c) { return c == '\r' || c == '\n'; }, '?');
    return storable;
}

ProjectFile::Place ProjectFile::appendSection(std::string_view head) {
    std::optional<Place> last;
    if (!lines_.empty()) last = std::prev(lines_.end());
    if (last && !trimBlanks((*last)->text).empty()) last = insertAfter(last, {});
    return insertAfter(last, std::string(head));
}

} // namespace host
