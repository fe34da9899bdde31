// The blocks within a block.
#include "Basic/case_folding.h"
#include "Host/files/form_block.h"
#include "Host/files/form_line.h"
#include "Host/files/property_value.h"
#include <algorithm>

namespace host {

namespace {

constexpr std::size_t kLevelWidth = 3;

void indentLine(std::string& line, int levels) {
    if (lineText(line).empty()) return;
    if (levels > 0) line.insert(0, kLevelWidth * std::size_t(levels), ' ');
    if (levels < 0) line.erase(0, std::min(kLevelWidth * std::size_t(-levels), line.find_first_not_of(' ')));
}

} // namespace

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
        item->line = rewrittenLine(item->line, resourceLiteral(value.resource), parts.comment);
        changed = true;
    }
    return changed;
}

std::shared_ptr<FormBlock> FormBlock::properties(std::string_view name) const {
    const Item* item = find(name);
    return item ? item->block : nullptr;
}

std::shared_ptr<FormBlock> FormBlock::addProperties(std::string_view name, std::string_view guid) {
    auto block = std::make_shared<FormBlock>(Kind::Properties, newLine(blockLineText("BeginProperty", name, guid)));
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
    auto block = std::make_shared<FormBlock>(Kind::Object, newLine(blockLineText("Begin", type, name)));
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

void FormBlock::indent(int levels) {
    indentLine(firstLine_, levels);
    indentLine(lastLine_, levels);
    for (const auto& item : items_) {
        indentLine(item->line, levels);
        if (item->block && !item->isObject()) item->block->indent(levels);
    }
}

void FormBlock::eachBlockWithin(const std::function<void(const std::shared_ptr<FormBlock>&)>& see) const {
    for (const auto& item : items_) {
        if (!item->block) continue;
        see(item->block);
        item->block->eachBlockWithin(see);
    }
}

FormBlock::Content FormBlock::content() const {
    Content content{firstLine_, lastLine_, {}};
    for (const auto& item : items_) content.items.push_back(*item);
    return content;
}

void FormBlock::content(const Content& content) {
    firstLine_ = content.firstLine;
    lastLine_ = content.lastLine;
    const auto parts = parseFormLine(firstLine_);
    name_ = parts.name;
    type_ = parts.type;
    items_.clear();
    for (const auto& item : content.items) items_.push_back(std::make_unique<Item>(item));
    indexed_ = false;
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
