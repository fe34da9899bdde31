#include "Host/files/project_file.h"
#include "Basic/case_folding.h"
#include "Host/files/encoding.h"
#include "Host/files/system_error.h"
#include "Host/files/trim.h"
#include <fmt/format.h>

namespace host {
namespace {

/// The name of a section when `line` is its head.
std::optional<std::string_view> sectionHead(std::string_view line) noexcept {
    line = trimBlanks(line);
    if (line.size() < 3 || line.front() != '[' || line.back() != ']') return {};
    return trimBlanks(line.substr(1, line.size() - 2));
}

struct KeyAndValue {
    std::string_view key, value;
};

std::optional<KeyAndValue> splitKeyLine(std::string_view line) noexcept {
    if (line.substr(0, kByteOrderMark.size()) == kByteOrderMark) line.remove_prefix(kByteOrderMark.size());
    const auto at = line.find('=');
    if (at == std::string_view::npos) return {};
    return KeyAndValue{trimBlanks(line.substr(0, at)), line.substr(at + 1)};
}

std::string_view valueOf(const TextLine& line) noexcept {
    const auto parts = splitKeyLine(line.text);
    return parts ? parts->value : std::string_view{};
}

/// The delimiter round a setting's value: a quote, or the "!" that one tool writes in its stead; 0 for none.
char delimiterOf(std::string_view value) noexcept {
    if (value.size() < 2 || value.front() != value.back()) return 0;
    return value.front() == '"' || value.front() == '!' ? value.front() : char(0);
}

std::string delimited(std::string_view value, char delimiter) {
    std::string text(value);
    if (delimiter) text.insert(0, 1, delimiter).push_back(delimiter);
    return text;
}

void refuseLineBreak(std::string_view text) {
    if (text.find_first_of("\r\n") != std::string_view::npos)
        throw hostError(basic::kInvalidProcedureCall, "A value of a project file cannot hold a line break");
}

void refuseUnreadableName(std::string_view section, std::string_view key) {
    const bool unreadable = trimBlanks(section).empty() || trimBlanks(key).empty() ||
                            key.find('=') != std::string_view::npos || trimBlanks(key).front() == '[';
    if (unreadable)
        throw hostError(basic::kInvalidProcedureCall,
                        fmt::format("A project file cannot hold the key \"{}\" of section \"{}\"", key, section));
}

std::string memberValue(MemberKind kind, std::string_view name, std::string_view value) {
    return lineHoldsName(kind) && !name.empty() ? fmt::format("{}; {}", name, value) : std::string(value);
}

} // namespace

ProjectFile::ProjectFile(std::string_view bytes, basic::CodePage codePage)
    : codePage_(std::move(codePage)), ownEnd_(ownLineEnd(bytes)) {
    Section* current = nullptr;
    while (!bytes.empty()) {
        TextLine line;
        line.text = takeLine(bytes, line.end);
        indexLine(lines_.insert(lines_.end(), std::move(line)), current);
    }
}

void ProjectFile::indexLine(Place line, Section*& current) {
    if (const auto head = sectionHead(line->text)) {
        const auto [section, isNew] = sections_.try_emplace(folded(*head));
        if (isNew) section->second.last = line;
        current = &section->second;
    } else {
        indexKeyLine(line, current);
    }
}

void ProjectFile::indexKeyLine(Place line, Section* current) {
    const auto parts = splitKeyLine(line->text);
    if (!parts || parts->key.empty()) return;
    if (current) {
        current->values.try_emplace(folded(parts->key), line);
        current->last = line;
        return;
    }
    if (memberKindOfKey(parts->key)) {
        lastMember_ = line;
        known_ = true;
        return;
    }
    settings_.try_emplace(folded(parts->key), line);
    lastSetting_ = line;
    known_ = known_ || placeOfSetting(parts->key).has_value();
}

std::string ProjectFile::folded(std::string_view bytes) const { return basic::foldCase(codePage_.decode(bytes)); }

std::string ProjectFile::bytes() const {
    std::string all;
    for (const auto& line : lines_) all.append(line.text).append(bytesOf(line.end));
    return all;
}

std::string ProjectFile::lineOf(std::string_view key, std::string_view value) const {
    refuseLineBreak(key);
    refuseLineBreak(value);
    return codePage_.encode(fmt::format("{}={}", key, value));
}

ProjectFile::Place ProjectFile::insertAfter(std::optional<Place> line, std::string text) {
    if (line && (*line)->end == LineEnd::None) (*line)->end = ownEnd_;
    return lines_.insert(line ? std::next(*line) : lines_.begin(), TextLine{std::move(text), ownEnd_});
}

// ---- settings ----------------------------------------------------------------------------------------------------------

std::optional<std::string> ProjectFile::setting(std::string_view key) const {
    const auto found = settings_.find(basic::foldCase(key));
    if (found == settings_.end()) return {};
    auto value = trimBlanks(valueOf(*found->second));
    if (delimiterOf(value)) value = value.substr(1, value.size() - 2);
    return codePage_.decode(value);
}

void ProjectFile::setSetting(std::string_view key, std::string_view value) {
    const auto order = placeOfSetting(key);
    const char usual = order && kSettingOrder[*order].quoted ? '"' : char(0);
    const auto found = settings_.find(basic::foldCase(key));
    if (found == settings_.end()) {
        addSetting(order.value_or(kSettingOrder.size()), key, delimited(value, usual));
        return;
    }
    refuseLineBreak(value);
    auto& text = found->second->text;
    const auto old = trimBlanks(valueOf(*found->second));
    const auto stands = delimiterOf(old);
    const auto written = codePage_.encode(delimited(value, stands ? stands : usual));
    text.replace(std::size_t(old.data() - text.data()), old.size(), written);
}

void ProjectFile::addSetting(std::size_t order, std::string_view key, std::string_view value) {
    auto line = lineOf(key, value);
    const auto before = lineBefore(order);
    const auto place = insertAfter(before, std::move(line));
    settings_.emplace(basic::foldCase(key), place);
    if (!lastSetting_ || before == lastSetting_) lastSetting_ = place;
    known_ = true;
}

/// The line behind which an absent setting of this order goes: its nearest predecessor, else the last member, else the type.
std::optional<ProjectFile::Place> ProjectFile::lineBefore(std::size_t order) const {
    if (order == kSettingOrder.size() && lastSetting_) return lastSetting_;
    for (auto before = order; before-- > 1;)
        if (const auto found = settings_.find(basic::foldCase(kSettingOrder[before].key)); found != settings_.end())
            return found->second;
    if (order == 0) return {};
    return lastMember_ ? lastMember_ : typeLine();
}

std::optional<ProjectFile::Place> ProjectFile::typeLine() const {
    const auto type = settings_.find("type");
    return type == settings_.end() ? std::nullopt : std::optional(type->second);
}

// ---- members -----------------------------------------------------------------------------------------------------------

std::vector<ProjectFile::Member> ProjectFile::members() {
    std::vector<Member> members;
    std::size_t number = 0;
    for (auto line = lines_.begin(); line != lines_.end() && !sectionHead(line->text); ++line) {
        ++number;
        const auto parts = splitKeyLine(line->text);
        const auto kind = parts ? memberKindOfKey(parts->key) : std::nullopt;
        if (!kind) continue;
        const auto value = codePage_.decode(parts->value);
        ProjectMember member{*kind, {}, value, number};
        if (isComponentKind(*kind)) member.value = trimBlanks(value);
        const auto semicolon = value.find(';');
        if (lineHoldsName(*kind) && semicolon != std::string::npos) {
            member.name = trimBlanks(std::string_view(value).substr(0, semicolon));
            member.value = trimBlanks(std::string_view(value).substr(semicolon + 1));
        }
        members.push_back({line, std::move(member)});
    }
    return members;
}

ProjectFile::Place ProjectFile::addMember(MemberKind kind, std::string_view name, std::string_view value) {
    auto line = lineOf(keyOfMemberKind(kind), memberValue(kind, name, value));
    lastMember_ = insertAfter(lastMember_ ? lastMember_ : typeLine(), std::move(line));
    known_ = true;
    return *lastMember_;
}

void ProjectFile::setMember(Place member, std::string_view name, std::string_view value) {
    const auto key = splitKeyLine(member->text)->key;
    const auto kind = *memberKindOfKey(key);
    member->text = lineOf(key, memberValue(kind, name, value));
}

void ProjectFile::removeMember(Place member) {
    const bool wasLast = lastMember_ == member;
    auto before = lines_.erase(member);
    if (!wasLast) return;
    lastMember_.reset();
    while (!lastMember_ && before != lines_.begin()) {
        const auto parts = splitKeyLine((--before)->text);
        if (parts && memberKindOfKey(parts->key)) lastMember_ = before;
    }
}

// ---- sections ----------------------------------------------------------------------------------------------------------

std::string ProjectFile::readProperty(std::string_view section, std::string_view key) const {
    if (const auto found = sections_.find(basic::foldCase(trimBlanks(section))); found != sections_.end())
        if (const auto value = found->second.values.find(basic::foldCase(trimBlanks(key)));
            value != found->second.values.end())
            return codePage_.decode(valueOf(*value->second));
    throw hostError(basic::kInvalidProcedureCall);
}

bool ProjectFile::writeProperty(std::string_view section, std::string_view key, std::string_view value) {
    refuseLineBreak(section);
    refuseUnreadableName(section, key);
    auto line = lineOf(key, value);
    const auto head = codePage_.encode(fmt::format("[{}]", section));
    auto found = sections_.find(basic::foldCase(trimBlanks(section)));
    if (found == sections_.end()) {
        const auto place = appendSection(head);
        found = sections_.emplace(basic::foldCase(trimBlanks(section)), Section{place, {}}).first;
    }
    auto& [last, values] = found->second;
    if (const auto old = values.find(basic::foldCase(trimBlanks(key))); old != values.end()) {
        auto& text = old->second->text;
        const auto written = line.substr(line.find('=') + 1);
        if (valueOf(*old->second) == written) return false;
        text.replace(text.find('=') + 1, std::string::npos, written);
        return true;
    }
    last = insertAfter(last, std::move(line));
    values.emplace(basic::foldCase(trimBlanks(key)), last);
    return true;
}

ProjectFile::Place ProjectFile::appendSection(std::string_view head) {
    std::optional<Place> last;
    if (!lines_.empty()) last = std::prev(lines_.end());
    if (last && !trimBlanks((*last)->text).empty()) last = insertAfter(last, {});
    return insertAfter(last, std::string(head));
}

} // namespace host
