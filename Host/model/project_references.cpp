#include "Host/model/project_references.h"
#include "Basic/case_folding.h"
#include "Components/Language/foreign.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_line.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/project.h"
#include "Host/model/references/language_libraries.h"
#include "Host/system/path_text.h"
#include <algorithm>
#include <fmt/format.h>
#include <unistd.h>

namespace host {
namespace {

using RefKind = LibraryReference::Kind;

constexpr int kLibraryNotRegistered = -2147319779;
constexpr int kErrorInLoadingDll = 48;

bool isReferenceKind(MemberKind kind) { return kind == MemberKind::Reference || kind == MemberKind::Object; }

LibraryReference libraryLine(RefKind kind, const TypeLibrary& library, std::string path) {
    LibraryReference line;
    line.kind = kind;
    line.guid = library.guid;
    line.major = library.major;
    line.minor = library.minor;
    line.path = std::move(path);
    line.description = library.description;
    return line;
}

std::shared_ptr<ProjectReference> builtInReference(const LanguageLibrary& library) {
    const std::string file(library.file);
    const auto line = libraryLine(
        RefKind::TypeLibrary,
        {std::string(library.guid), library.major, library.minor, {}, std::string(library.description)}, file);
    return std::make_shared<ProjectReference>(line, file, std::string(library.name), true, true);
}

LibraryReference projectLine(std::string path) {
    LibraryReference line;
    line.kind = RefKind::Project;
    line.path = std::move(path);
    return line;
}

std::string nameOf(const LibraryReference& line, const std::string& path, const fernwick::Classes* classes) {
    const auto info = classes && !line.guid.empty() ? classes->TypeLibInfoFromFile(path) : nullptr;
    if (info && !info->Name.empty()) return info->Name;
    return line.guid == kStdOle ? "stdole" : baseName(line.path);
}

} // namespace

std::shared_ptr<Project> ProjectReferences::project() const {
    if (!project_) throwRemoved();
    return project_->shared_from_this();
}

int ProjectReferences::Count() const {
    project();
    return int(list_.size());
}

vbide::Ref<vbide::Reference> ProjectReferences::Item(int index) const {
    project();
    return itemAt(list_, index);
}

std::vector<vbide::Ref<vbide::Reference>> ProjectReferences::items() const {
    project();
    return {list_.begin(), list_.end()};
}

void ProjectReferences::load(const std::vector<ProjectFile::Member>& members) {
    for (const auto& library : kLanguageLibraries) list_.push_back(builtInReference(library));
    for (const auto& [place, content] : members) {
        if (!isReferenceKind(content.kind)) continue;
        const bool isObject = content.kind == MemberKind::Object;
        const auto line = isObject ? parseObjectLine(content.value) : parseReferenceLine(content.value);
        if (line.kind == RefKind::Unknown || line.kind == RefKind::OleObject) continue;
        auto reference = makeReference(line);
        reference->member(place);
        list_.push_back(std::move(reference));
    }
}

std::shared_ptr<ProjectReference> ProjectReferences::makeReference(const LibraryReference& line) const {
    const auto owner = project();
    const auto host = owner->host();
    const auto registered = host->libraries().find(line.guid, line.major, line.minor);
    // The GUID identifies the library; the path is only a fallback.
    const auto hint = owner->FileName().empty() ? "/" : owner->folder();
    auto path = registered && !registered->path.empty() ? registered->path : PathLookup().find(hint, line.path);
    auto name = nameOf(line, path, host->options().classes);
    return std::make_shared<ProjectReference>(line, std::move(path), std::move(name), false,
                                              registered.has_value() || isAlwaysKnown(line.guid));
}

std::shared_ptr<ProjectReference> ProjectReferences::withGuid(const std::string& guid) const {
    const auto found = std::find_if(list_.begin(), list_.end(), [&](const auto& r) { return r->line().guid == guid; });
    return found == list_.end() ? nullptr : *found;
}

vbide::Ref<vbide::Reference> ProjectReferences::add(MemberKind kind, const LibraryReference& line) {
    const auto owner = project();
    const auto place = owner->file().addMember(kind, {}, formatReference(line));
    owner->changed();
    auto reference = makeReference(line);
    reference->member(place);
    list_.push_back(reference);
    owner->host()->raise(owner->referencesEvents->ItemAdded, reference);
    return reference;
}

vbide::Ref<vbide::Reference> ProjectReferences::AddFromGuid(const std::string& guid, int major, int minor) {
    const auto owner = project();
    const auto wanted = normalGuid(guid);
    if (wanted.empty() || major < 0 || minor < 0) throw hostError(basic::kInvalidProcedureCall);
    if (const auto existing = withGuid(wanted)) return existing;
    const auto library = owner->host()->libraries().find(wanted, std::uint32_t(major), std::uint32_t(minor));
    if (!library) throw hostError(kLibraryNotRegistered, fmt::format("{}: Library not registered", wanted));
    return add(MemberKind::Reference, libraryLine(RefKind::TypeLibrary, *library, owner->memberPath(library->path)));
}

/// The library that a file holds.
TypeLibrary ProjectReferences::libraryOf(const std::string& file) const {
    auto* classes = project()->host()->options().classes;
    const auto info = classes ? classes->TypeLibInfoFromFile(file) : nullptr;
    if (!info) throw hostError(kErrorInLoadingDll, file + ": Error in loading DLL");
    return {normalGuid(info->Guid), std::uint32_t(info->MajorVersion), std::uint32_t(info->MinorVersion), file,
            info->Name};
}

vbide::Ref<vbide::Reference> ProjectReferences::AddFromFile(const std::string& path) {
    const auto owner = project();
    const auto native = absolutePath(path);
    if (::access(native.c_str(), F_OK) != 0) throw hostError(basic::kFileNotFound, native + ": File not found");
    if (basic::equalNoCase(extensionName(native), "vbp"))
        return add(MemberKind::Reference, projectLine(owner->memberPath(native)));
    const auto library = libraryOf(native);
    if (const auto existing = withGuid(library.guid)) return existing;
    return add(MemberKind::Reference, libraryLine(RefKind::TypeLibrary, library, owner->memberPath(native)));
}

std::optional<ObjectLine> ProjectReferences::objectLineOf(const std::string& className) const {
    const auto library = className.substr(0, className.find('.'));
    for (const auto& reference : list_) {
        const auto& line = reference->line();
        const auto* const known = language::foreignLibrary(line.guid);
        const auto name = known ? known->name : reference->Name();
        if (line.kind != RefKind::Control ||
            !(basic::equalNoCase(library, name) || basic::equalNoCase(library, name + "Ctl")))
            continue;
        const auto text = formatReference(line);
        return ObjectLine{text.substr(0, text.find(';')), lastName(line.path)};
    }
    return std::nullopt;
}

void ProjectReferences::addControlLibrary(const std::string& progId) {
    const auto owner = project();
    const auto library = owner->host()->libraries().ofProgId(progId);
    if (!library) throw hostError(basic::kCantCreateObject, fmt::format("{}: Class not registered", progId));
    if (withGuid(library->guid)) return;
    add(MemberKind::Object, libraryLine(RefKind::Control, *library, lastName(library->path)));
}

void ProjectReferences::addControls(const std::string& guid) {
    const auto wanted = normalGuid(guid);
    if (withGuid(wanted)) return;
    const auto library = project()->host()->libraries().find(wanted, 0, 0);
    if (!library) throw hostError(kLibraryNotRegistered, fmt::format("{}: Library not registered", wanted));
    add(MemberKind::Object, libraryLine(RefKind::Control, *library, lastName(library->path)));
}

void ProjectReferences::addControlFile(const std::string& path) {
    const auto native = absolutePath(path);
    if (::access(native.c_str(), F_OK) != 0) throw hostError(basic::kFileNotFound, native + ": File not found");
    const auto library = libraryOf(native);
    if (!withGuid(library.guid)) add(MemberKind::Object, libraryLine(RefKind::Control, library, lastName(native)));
}

/// The lines stay where they are and exchange their values, so that everything between them is unchanged.
void ProjectReferences::arrange(const std::vector<vbide::Ref<vbide::Reference>>& order) {
    const auto owner = project();
    std::vector<std::shared_ptr<ProjectReference>> wanted;
    for (const auto& one : order) {
        const auto own = basic::cast<ProjectReference>(one).shared();
        const bool isLine = own && own->member() && own->line().kind != RefKind::Control;
        if (isLine && std::find(list_.begin(), list_.end(), own) != list_.end()) wanted.push_back(own);
    }
    const auto isMoved = [&](const auto& own) { return std::find(wanted.begin(), wanted.end(), own) != wanted.end(); };
    std::vector<std::size_t> places; // in the list, in the order of the file
    for (std::size_t i = 0; i < list_.size(); ++i)
        if (isMoved(list_[i])) places.push_back(i);
    if (places.size() != wanted.size()) throw hostError(basic::kInvalidProcedureCall); // one of them twice
    std::vector<ProjectFile::Place> lines;
    std::vector<std::string> values;
    for (const auto place : places) lines.push_back(*list_[place]->member());
    for (const auto& own : wanted) values.emplace_back(valueOf(**own->member()));
    bool isChanged = false;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (list_[places[i]] == wanted[i]) continue;
        owner->file().setMember(lines[i], {}, values[i]);
        wanted[i]->member(lines[i]);
        list_[places[i]] = wanted[i];
        isChanged = true;
    }
    if (isChanged) owner->changed();
}

void ProjectReferences::Remove(const vbide::Ref<vbide::Reference>& reference) {
    const auto owner = project();
    const auto own = basic::cast<ProjectReference>(reference).shared();
    if (!own || own->BuiltIn() || std::find(list_.begin(), list_.end(), own) == list_.end())
        throw hostError(basic::kInvalidProcedureCall);
    owner->host()->raise(owner->referencesEvents->ItemRemoved, reference);
    if (std::erase(list_, own) == 0) return; // a handler removed it
    if (own->member()) owner->file().removeMember(*own->member());
    owner->changed();
    own->remove();
}

void ProjectReferences::close() {
    project_ = nullptr;
    for (const auto& reference : list_) reference->remove();
    list_.clear();
}

} // namespace host
