#include "Host/model/form_resources.h"
#include "Basic/case_folding.h"
#include "Host/files/native_path.h"
#include "Host/files/path_lookup.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/component.h"
#include "Host/model/host.h"
#include "Host/model/project.h"
#include <unistd.h>
#include <utility>

namespace host {
namespace {

std::shared_ptr<const ResourceFile> readResources(const std::string& path) {
    try {
        return std::make_shared<ResourceFile>(readFile(path).bytes);
    } catch (const basic::RuntimeError&) {
        return nullptr; // the properties of a form without its companion have their defaults
    }
}

} // namespace

bool FormResources::Own::isNamed(std::string_view fileName) const {
    const auto same = [&](const std::string& former) { return basic::equalNoCase(former, fileName); };
    return same(name) || std::any_of(formerNames.begin(), formerNames.end(), same);
}

/// Cached, since a form refers to its companion many times.
std::shared_ptr<const ResourceFile> FormResources::find(const std::string& name) {
    if (own_ && own_->isNamed(name)) return own_->file;
    PathLookup lookup;
    const auto path = lookup.find(folderOf(component_.resourceOwner()), name);
    const auto [entry, isNew] = read_.try_emplace(path);
    if (isNew) entry->second = readResources(path);
    return entry->second;
}

std::string FormResources::onDisk(const std::string& sourcePath) {
    if (sourcePath.empty()) return {};
    const auto found = PathLookup().find(folderOf(sourcePath), fileNameOf(companionOf(sourcePath)));
    return ::access(found.c_str(), F_OK) == 0 ? found : std::string();
}

FormResources::Own& FormResources::own() {
    if (own_) return *own_;
    const auto& owner = component_.resourceOwner();
    const auto fileName =
        owner.empty() ? component_.Name().append(kindOf(component_.Type()).extension) : fileNameOf(owner);
    Own made;
    made.name = companionOf(fileName);
    std::string bytes;
    if (const auto found = onDisk(owner); !found.empty()) {
        auto read = readFile(found);
        made.name = fileNameOf(found);
        made.stamp = read.stamp;
        bytes = std::move(read.bytes);
    }
    own_ = std::move(made);
    // a reference to data that is missing must not get that of another property
    if (const auto end = endOfReferences(); end > bytes.size() && end <= kLargestResourceGap) bytes.resize(end);
    own_->newFrom = bytes.size();
    own_->file = std::make_shared<ResourceFile>(std::move(bytes));
    return *own_;
}

ResourceReference FormResources::add(const std::string& record) {
    auto& file = own().file;
    const auto offset = file->bytes().size();
    file = std::make_shared<ResourceFile>(file->bytes() + record);
    return {own_->name, offset, false};
}

/// The position after the last record of the form's own file to which the form refers, as far as offsets show.
std::size_t FormResources::endOfReferences() const {
    std::size_t end = 0;
    const auto see = [&](const FormBlock&, std::string_view, std::string_view literal, std::size_t) {
        const auto value = parsePropertyValue(literal);
        if (value.kind == PropertyValue::Kind::Resource && own_->isNamed(value.resource.file))
            end = std::max(end, value.resource.offset + 1);
    };
    std::size_t line = 0;
    if (const auto& root = component_.source().form()->root()) root->eachPropertyWithin(see, line);
    return end;
}

/// Whether the form refers to a record that is not in the file. Undone changes leave unused records.
bool FormResources::isNeeded() const {
    return own_ && own_->newFrom < own_->file->bytes().size() && own_->newFrom < endOfReferences();
}

bool FormResources::write(Project& project, const std::string& path, const std::optional<FileStamp>& asRead) {
    const auto stamp = project.host()->writeFile(project, path, own_->file->bytes(), asRead);
    if (!stamp) return false;
    own_->stamp = stamp;
    own_->newFrom = own_->file->bytes().size();
    return true;
}

bool FormResources::save(Project& project, const std::string& target) {
    copied_.reset();
    const bool needed = isNeeded();
    renameReferences();
    if (target != component_.path()) return copy(project, target, needed) || !needed;
    if (!needed) return true;
    const auto found = onDisk(target);
    return write(project, found.empty() ? companionOf(target) : found, own_->stamp);
}

void FormResources::renameReferences() {
    if (!own_) return;
    for (const auto& former : own_->formerNames) component_.source().renameCompanion(former, own_->name);
}

/// Copies the form's resources and changes its references to them. False if that was cancelled.
bool FormResources::copy(Project& project, const std::string& target, bool needed) {
    if (!own_ && onDisk(component_.resourceOwner()).empty()) return true;
    auto before = own();
    const auto place = companionOf(target);
    if ((needed || before.stamp) && !write(project, place, std::nullopt)) return false;
    own_->name = fileNameOf(place);
    own_->formerNames.push_back(before.name);
    renameReferences();
    copied_ = std::move(before);
    return true;
}

void FormResources::formNotSaved() {
    if (!copied_) return;
    component_.source().renameCompanion(own_->name, copied_->name);
    own_ = std::exchange(copied_, std::nullopt);
}

UnsavedRecords FormResources::unsaved() {
    const bool isNew = component_.path().empty();
    if (isNew && !onDisk(component_.resourceOwner()).empty()) (void)basic::attempt([this] { own(); });
    if (!own_ || (!isNew && !isNeeded())) return {};
    const auto from = isNew ? 0 : own_->newFrom;
    return {own_->name, from, isNew ? std::nullopt : own_->stamp, own_->file->bytes().substr(from)};
}

void FormResources::restore(const UnsavedRecords& records) {
    discard();
    if (records.bytes.empty()) return;
    std::string before;
    const auto found = onDisk(component_.resourceOwner());
    if (!found.empty()) (void)basic::attempt([&] { before = readFile(found).bytes; });
    auto bytes = withRecords(std::move(before), records);
    if (bytes)
        own_ = Own{records.file, {}, std::make_shared<ResourceFile>(std::move(*bytes)), records.base, records.from};
}

void FormResources::discard() {
    reread();
    own_.reset();
}

} // namespace host
