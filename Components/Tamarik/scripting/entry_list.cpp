#include "Basic/case_folding.h"
#include "Components/Tamarik/files/stored_files.h"
#include "Components/Tamarik/scripting/entries.h"
#include "Components/Tamarik/scripting/file_actions.h"
#include "Components/Tamarik/scripting/guarded.h"
#include <algorithm>

namespace tamarik {

namespace {

class EntryWalk final : public Walk {
public:
    EntryWalk(std::vector<std::string> paths, bool hasFolders) : paths_(std::move(paths)), hasFolders_(hasFolders) {}
    [[nodiscard]] std::string_view className() const override { return "IEnumVARIANT"; }
    bool next(Heap& heap, Variant& element) override {
        if (at_ >= paths_.size()) return false;
        element = ofObject(makeEntry(heap, paths_[at_++], hasFolders_));
        return true;
    }
    void releaseMembers(Heap&) override {}

private:
    std::vector<std::string> paths_;
    bool hasFolders_;
    std::size_t at_ = 0;
};

EntryList& listIn(LibraryObject& object) { return static_cast<EntryList&>(object); }

void listItem(LibraryObject& object, MemberCall& call) {
    const EntryList& list = listIn(object);
    const std::string name = toUtf8(textArgument(call, 0));
    for (const auto& path : list.paths()) {
        if (!basic::equalNoCase(nameOf(path), name)) continue;
        call.result = ofObject(makeEntry(call.session.heap, path, list.hasFolders()));
        return;
    }
    throw basic::RuntimeError(list.hasFolders() ? basic::kPathNotFound : basic::kFileNotFound);
}

void addFolder(LibraryObject& object, MemberCall& call) {
    const EntryList& list = listIn(object);
    if (!list.hasFolders()) throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
    const std::string path = pathOfName(call.session, list.folder(), textArgument(call, 0));
    createFolder(call.session, path);
    call.result = ofObject(makeEntry(call.session.heap, path, true));
}

} // namespace

Object* makeEntry(Heap& heap, const std::string& path, bool isFolder) {
    if (isFolder) return makeObject<Folder>(heap, path);
    return makeObject<File>(heap, path);
}

std::vector<std::string> EntryList::paths() const {
    const auto info = store_.find(folder_);
    if (!info || !info->isFolder) throw basic::RuntimeError(basic::kPathNotFound);
    std::vector<std::string> found;
    for (const auto& name : store_.names(folder_)) {
        const std::string path = pathIn(folder_, name);
        const auto entry = store_.find(path);
        if (entry && entry->isFolder == hasFolders_) found.push_back(path);
    }
    std::sort(found.begin(), found.end(), basic::NoCaseLess());
    return found;
}

Object* EntryList::walk(Heap& heap) { return makeObject<EntryWalk>(heap, paths(), hasFolders_); }

std::span<const LibraryMember> EntryList::members() const {
    using enum LibraryMember::Uses;
    static constexpr LibraryMember kMembers[] = {
        {"Item", "Key", Read, &guarded<&listItem>},
        {"Count", "", Read,
         [](LibraryObject& object, MemberCall& call) {
             call.result = ofNumber(static_cast<std::int32_t>(listIn(object).paths().size()));
         }},
        {"Add", "Name", Read, &guarded<&addFolder>},
        {"_NewEnum", "", Read,
         [](LibraryObject& object, MemberCall& call) { call.result = ofObject(object.walk(call.session.heap)); }},
    };
    return kMembers;
}

} // namespace tamarik
