#include "Host/files/form_file.h"
#include "Basic/case_folding.h"
#include "Host/files/byte_order_mark.h"
#include "Host/files/form_line.h"
#include "Host/files/form_reader.h"
#include "Host/files/property_value.h"
#include "Host/files/text_file.h"
#include "Host/files/text_parts.h"
#include <fmt/core.h>

namespace host {
namespace {

/// Parses `Attribute Name = literal` as a property line that begins after the first word.
FormLine attributeParts(std::string_view line) {
    return beginsWithWord(line, kAttributeWord) ? parseFormLine(line.substr(kAttributeWord.size())) : FormLine{};
}

std::string joinedFormLines(const std::vector<std::string>& lines) {
    std::string out;
    for (const auto& line : lines) out += line;
    return out;
}

} // namespace

FormFile FormFile::parse(std::string_view text) {
    FormFile file;
    FormReader(file, text).read();
    return file;
}

std::string FormFile::head() const {
    auto out = joinedFormLines(before_);
    if (root_) root_->writeTo(out);
    return out + joinedFormLines(between_) + joinedFormLines(attributes_);
}

std::size_t FormFile::firstCodeLine() const {
    return before_.size() + (root_ ? root_->lineCount() : 0) + between_.size() + attributes_.size() + 1;
}

std::string FormFile::version() const {
    for (std::string_view line : before_) {
        line = withoutByteOrderMark(line);
        if (!beginsWithWord(line, kVersionWord)) continue;
        return std::string(trimRight(lineText(line).substr(kVersionWord.size() + 1)));
    }
    return {};
}

std::vector<ObjectLine> FormFile::objects() const {
    std::vector<ObjectLine> out;
    for (const auto& line : before_) {
        const auto parts = parseFormLine(line);
        if (parts.kind != FormLine::Kind::Property) continue;
        const auto semicolon = parts.value.find("\";");
        const auto first = semicolon == std::string_view::npos ? parts.value : parts.value.substr(0, semicolon + 1);
        const auto second = trimLeft(parts.value.substr(std::min(first.size() + 1, parts.value.size())));
        out.push_back({parsePropertyValue(first).string, parsePropertyValue(second).string});
    }
    return out;
}

void FormFile::addObject(const ObjectLine& line) {
    const auto known = objects();
    if (std::any_of(known.begin(), known.end(),
                    [&](const auto& o) { return basic::equalNoCase(o.library, line.library); }))
        return;
    const auto text = fmt::format("Object = {}; {}{}", stringLiteral(line.library), stringLiteral(line.file),
                                  bytesOf(ownLineEnd(head())));
    // after the other Object lines, which follow the version
    auto at = before_.end();
    while (at != before_.begin() && !beginsWithWord(*(at - 1), "Object") && !beginsWithWord(*(at - 1), kVersionWord))
        --at;
    before_.insert(at, text);
}

std::optional<std::string> FormFile::attribute(std::string_view name) const {
    for (const auto& line : attributes_)
        if (const auto parts = attributeParts(line); basic::equalNoCase(parts.name, name))
            return std::string(parts.value);
    return std::nullopt;
}

bool FormFile::attribute(std::string_view name, std::string_view literal) {
    for (auto& line : attributes_) {
        const auto parts = attributeParts(line);
        if (!basic::equalNoCase(parts.name, name)) continue;
        if (parts.value == literal) return false;
        const auto from = std::size_t(parts.value.data() - line.data());
        line.replace(from, parts.value.size(), literal);
        return true;
    }
    const auto before = head();
    const auto end = bytesOf(ownLineEnd(before));
    if (!before.empty() && before.back() != '\n' && before.back() != '\r') {
        if (attributes_.empty())
            between_.emplace_back(end);
        else
            attributes_.back() += end;
    }
    attributes_.push_back(fmt::format("{} {} = {}{}", kAttributeWord, name, literal, end));
    return true;
}

} // namespace host
