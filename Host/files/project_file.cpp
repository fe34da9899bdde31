#include "Host/files/project_file.h"
#include "Basic/case_folding.h"
#include "Host/files/project_line.h"
#include "Host/files/text_parts.h"
#include <fmt/format.h>

namespace host {
ProjectFile::ProjectFile(std::string_view bytes, basic::CodePage codePage)
    : codePage_(std::move(codePage)), ownEnd_(ownLineEnd(bytes)) {
    while (!bytes.empty()) {
        TextLine line;
        line.text = takeLine(bytes, line.end);
        lines_.push_back(std::move(line));
    }
    indexLines();
}

void ProjectFile::codePage(basic::CodePage page) {
    codePage_ = std::move(page);
    indexLines();
}

void ProjectFile::indexLines() {
    sections_.clear();
    settings_.clear();
    lastMember_.reset();
    lastSetting_.reset();
    Section* current = nullptr;
    for (auto line = lines_.begin(); line != lines_.end(); ++line) indexLine(line, current);
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

// ---- settings -------------------------------------------------------------------------------------------------------

std::optional<std::string> ProjectFile::setting(std::string_view key) const {
    const auto found = settings_.find(basic::foldCase(key));
    if (found == settings_.end()) return {};
    auto value = trimBlanks(valueOf(*found->second));
    if (delimiterAround(value)) value = value.substr(1, value.size() - 2);
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
    const auto present = delimiterAround(old);
    const auto written = codePage_.encode(delimited(value, present ? present : usual));
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

void ProjectFile::removeSetting(std::string_view key) {
    const auto found = settings_.find(basic::foldCase(key));
    if (found == settings_.end()) return;
    lines_.erase(found->second);
    indexLines();
}

/// The line after which to insert a missing setting: its nearest predecessor, else the last member, else the type.
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

// ---- members --------------------------------------------------------------------------------------------------------

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
    auto line = lineOf(keyOfMemberKind(kind), memberLineValue(kind, name, value));
    lastMember_ = insertAfter(lastMember_ ? lastMember_ : typeLine(), std::move(line));
    known_ = true;
    return *lastMember_;
}

void ProjectFile::setMember(Place member, std::string_view name, std::string_view value) {
    const auto key = splitKeyLine(member->text)->key;
    const auto kind = *memberKindOfKey(key);
    member->text = lineOf(key, memberLineValue(kind, name, value));
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

} // namespace host
