#include "Host/files/form_block.h"
#include "Basic/case_folding.h"
#include "Host/files/form_line.h"
#include <algorithm>
#include <fmt/core.h>

namespace host {
namespace {

constexpr std::string_view kOneLevel = "   ";
constexpr std::string_view kFormCrLf = "\r\n";

} // namespace

FormBlock::FormBlock(Kind kind, std::string firstLine) : kind_(kind), firstLine_(std::move(firstLine)) {
    const auto parts = parseFormLine(firstLine_);
    name_ = parts.name;
    type_ = parts.type;
}

void FormBlock::name(std::string_view newName) {
    const auto parts = parseFormLine(firstLine_);
    if (parts.name == newName) return;
    const auto from = std::size_t(parts.name.data() - firstLine_.data());
    firstLine_.replace(from, parts.name.size(), newName);
    name_ = newName;
}

FormBlock::Item* FormBlock::find(std::string_view key) const {
    if (!indexed_) {
        index_.clear();
        for (const auto& item : items_)
            if (!item->key.empty()) index_[item->key] = item.get();
        indexed_ = true;
    }
    const auto found = index_.find(basic::foldCase(key));
    return found == index_.end() ? nullptr : found->second;
}

std::optional<std::string> FormBlock::literal(std::string_view key) const {
    const Item* item = find(key);
    if (!item || item->block) return std::nullopt;
    return std::string(parseFormLine(item->line).value);
}

std::string FormBlock::comment(std::string_view key) const {
    const Item* item = find(key);
    return item && !item->block ? std::string(parseFormLine(item->line).comment) : std::string();
}

bool FormBlock::set(std::string_view key, std::string_view literal, std::string_view comment) {
    Item* item = find(key);
    if (item && item->block) return false;
    if (item) {
        if (parseFormLine(item->line).value == literal) return false;
        item->line = rewrittenLine(item->line, literal, comment);
        return true;
    }
    auto added = std::make_unique<Item>();
    added->line = newLine(propertyLineText(key, literal, comment));
    added->key = basic::foldCase(key);
    added->added = true;
    const auto at = placeFor(added->key);
    insert(at, std::move(added));
    return true;
}

bool FormBlock::remove(std::string_view key) {
    const Item* item = find(key);
    if (!item) return false;
    std::erase_if(items_, [item](const auto& i) { return i.get() == item; });
    indexed_ = false;
    return true;
}

bool FormBlock::wasAdded(std::string_view key) const {
    const Item* item = find(key);
    return item && item->added;
}

void FormBlock::eachProperty(const std::function<void(std::string_view, std::string_view)>& see) const {
    for (const auto& item : items_) {
        if (item->key.empty() || item->block) continue;
        const auto parts = parseFormLine(item->line);
        see(parts.name, parts.value);
    }
}

/// In an Object, before the first property that follows in alphabetical order; otherwise after the last property. Never
/// after a block without an end, which would swallow the new line.
FormBlock::Items::iterator FormBlock::placeFor(std::string_view key) {
    auto afterLast = items_.begin();
    for (auto at = items_.begin(); at != items_.end(); ++at) {
        if ((*at)->block && (*at)->block->lastLine_.empty()) return at;
        if ((*at)->key.empty()) continue;
        if (kind_ == Kind::Object && (*at)->key > key) return at;
        afterLast = at + 1;
    }
    return afterLast;
}

void FormBlock::insert(Items::iterator at, std::unique_ptr<Item> item) {
    ensureLineEnds();
    Item* raw = item.get();
    items_.insert(at, std::move(item));
    if (indexed_ && !raw->key.empty()) index_[raw->key] = raw;
}

/// Ends the last line of a file that stops within this block, so that lines can be added after it.
void FormBlock::ensureLineEnds() {
    const auto ended = [](std::string& line) {
        if (!line.empty() && lineEndOf(line).empty()) line += kFormCrLf;
    };
    ended(firstLine_);
    if (items_.empty()) return;
    if (auto& last = *items_.back(); last.block) {
        last.block->ensureLineEnds();
        ended(last.block->lastLine_);
    } else {
        ended(last.line);
    }
}

std::string FormBlock::newLine(std::string_view text) const {
    const auto end = lineEndOf(firstLine_).empty() ? kFormCrLf : lineEndOf(firstLine_);
    return fmt::format("{}{}{}{}", parseFormLine(firstLine_).indent, kOneLevel, text, end);
}

void FormBlock::append(std::unique_ptr<Item> item) {
    items_.push_back(std::move(item));
    indexed_ = false;
}

void FormBlock::appendLine(std::string_view line) {
    auto item = std::make_unique<Item>();
    item->line = line;
    if (const auto parts = parseFormLine(line); parts.kind == FormLine::Kind::Property)
        item->key = basic::foldCase(parts.name);
    append(std::move(item));
}

void FormBlock::appendBlock(std::shared_ptr<FormBlock> block) {
    auto item = std::make_unique<Item>();
    if (block->kind() == Kind::Properties) item->key = basic::foldCase(block->name());
    item->block = std::move(block);
    append(std::move(item));
}

} // namespace host
