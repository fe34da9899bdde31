#include "Host/files/form_block.h"
#include "Basic/case_folding.h"
#include "Host/files/form_line.h"
#include "Host/files/property_value.h"
#include <algorithm>
#include <fmt/core.h>

namespace host {
namespace {

constexpr std::string_view kFormLevel = "   ";
constexpr std::string_view kFormCrLf = "\r\n";
constexpr std::size_t kKeyWidth = 16, kBooleanWidth = 4;

std::string_view endOfFormLine(std::string_view wholeLine) { return wholeLine.substr(lineText(wholeLine).size()); }

/// Literal and comment as the designer writes them: Booleans stand in 4 columns, others before two blanks.
std::string withComment(std::string_view literal, std::string_view comment) {
    std::string out(literal);
    if (comment.empty()) return out;
    const bool boolean = comment == "True" || comment == "False";
    out.append(boolean && out.size() < kBooleanWidth ? kBooleanWidth - out.size() : 2, ' ');
    return out.append("'").append(comment);
}

std::string formPropertyText(std::string_view key, std::string_view literal, std::string_view comment) {
    return fmt::format("{:<{}}=   {}", key, kKeyWidth, withComment(literal, comment));
}

std::string formBlockText(std::string_view keyword, std::string_view first, std::string_view second) {
    return fmt::format("{} {} {}{}", keyword, first, second, second.empty() ? "" : " ");
}

/// The line with another literal and comment in the same layout.
std::string rewrittenLine(std::string_view whole, const FormLine& parts, std::string_view literal,
                          std::string_view comment) {
    std::string out(parts.value.empty() ? whole.substr(0, whole.find('=') + 1)
                                        : whole.substr(0, std::size_t(parts.value.data() - whole.data())));
    if (parts.value.empty()) out += kFormLevel;
    return out.append(withComment(literal, comment)).append(endOfFormLine(whole));
}

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
        const auto parts = parseFormLine(item->line);
        if (parts.value == literal) return false;
        item->line = rewrittenLine(item->line, parts, literal, comment);
        return true;
    }
    auto added = std::make_unique<Item>();
    added->line = newLine(formPropertyText(key, literal, comment));
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

void FormBlock::eachPropertyWithin(const SeeLine& see, std::size_t& line) const {
    ++line;
    for (const auto& item : items_) {
        if (item->block) {
            item->block->eachPropertyWithin(see, line);
            continue;
        }
        if (!item->key.empty()) {
            const auto parts = parseFormLine(item->line);
            see(*this, parts.name, parts.value, line);
        }
        ++line;
    }
    if (!lastLine_.empty()) ++line;
}

bool FormBlock::renameResources(std::string_view oldFile, std::string_view newFile) {
    bool changed = false;
    for (const auto& item : items_) {
        if (item->block) changed = item->block->renameResources(oldFile, newFile) || changed;
        if (item->block || item->key.empty()) continue;
        const auto parts = parseFormLine(item->line);
        auto value = parsePropertyValue(parts.value);
        if (value.kind != PropertyValue::Kind::Resource || !basic::equalNoCase(value.resource.file, oldFile)) continue;
        value.resource.file = newFile;
        item->line = rewrittenLine(item->line, parts, resourceLiteral(value.resource), parts.comment);
        changed = true;
    }
    return changed;
}

std::shared_ptr<FormBlock> FormBlock::properties(std::string_view name) const {
    const Item* item = find(name);
    return item ? item->block : nullptr;
}

std::shared_ptr<FormBlock> FormBlock::addProperties(std::string_view name, std::string_view guid) {
    auto block = std::make_shared<FormBlock>(Kind::Properties, newLine(formBlockText("BeginProperty", name, guid)));
    block->close(newLine("EndProperty"));
    auto item = std::make_unique<Item>();
    item->key = basic::foldCase(name);
    item->block = block;
    item->added = true;
    const auto at = placeFor(item->key);
    insert(at, std::move(item));
    return block;
}

FormBlock::Blocks FormBlock::objects() const {
    Blocks out;
    for (const auto& item : items_)
        if (item->isObject()) out.push_back(item->block);
    return out;
}

std::shared_ptr<FormBlock> FormBlock::addObject(std::string_view type, std::string_view name) {
    auto block = std::make_shared<FormBlock>(Kind::Object, newLine(formBlockText("Begin", type, name)));
    block->close(newLine("End"));
    auto item = std::make_unique<Item>();
    item->block = block;
    item->added = true;
    auto at = std::find_if(items_.begin(), items_.end(), [](const auto& i) { return i->isObject(); });
    insert(at, std::move(item));
    return block;
}

std::optional<std::size_t> FormBlock::removeObject(const FormBlock& block) {
    const auto at = std::find_if(items_.begin(), items_.end(),
                                 [&](const auto& i) { return i->isObject() && i->block.get() == &block; });
    if (at == items_.end()) return std::nullopt;
    const auto place = std::size_t(at - items_.begin());
    items_.erase(at);
    return place;
}

void FormBlock::restoreObject(std::shared_ptr<FormBlock> block, std::size_t place) {
    auto item = std::make_unique<Item>();
    item->block = std::move(block);
    items_.insert(items_.begin() + std::ptrdiff_t(std::min(place, items_.size())), std::move(item));
}

/// In an Object before the first property that comes later in the alphabet, else behind the last property; in any case
/// not behind a block whose end is missing, which would swallow it.
FormBlock::Items::iterator FormBlock::placeFor(std::string_view key) {
    auto behindLast = items_.begin();
    for (auto at = items_.begin(); at != items_.end(); ++at) {
        if ((*at)->block && (*at)->block->lastLine_.empty()) return at;
        if ((*at)->key.empty()) continue;
        if (kind_ == Kind::Object && (*at)->key > key) return at;
        behindLast = at + 1;
    }
    return behindLast;
}

void FormBlock::insert(Items::iterator at, std::unique_ptr<Item> item) {
    ensureLineEnds();
    Item* raw = item.get();
    items_.insert(at, std::move(item));
    if (indexed_ && !raw->key.empty()) index_[raw->key] = raw;
}

/// A file that breaks off within this block has a last line without an end, behind which no line can stand.
void FormBlock::ensureLineEnds() {
    const auto ended = [](std::string& line) {
        if (!line.empty() && endOfFormLine(line).empty()) line += kFormCrLf;
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
    const auto end = endOfFormLine(firstLine_).empty() ? kFormCrLf : endOfFormLine(firstLine_);
    return fmt::format("{}{}{}{}", parseFormLine(firstLine_).indent, kFormLevel, text, end);
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

void FormBlock::writeTo(std::string& out) const {
    out += firstLine_;
    for (const auto& item : items_) {
        out += item->line;
        if (item->block) item->block->writeTo(out);
    }
    out += lastLine_;
}

std::size_t FormBlock::lineCount() const {
    std::size_t count = (firstLine_.empty() ? 0 : 1) + (lastLine_.empty() ? 0 : 1);
    for (const auto& item : items_) count += item->block ? item->block->lineCount() : 1;
    return count;
}

} // namespace host
