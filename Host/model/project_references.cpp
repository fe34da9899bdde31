#include "Host/model/project_references.h"
#include "Basic/case_folding.h"
#include "Host/files/path_lookup.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/project.h"
#include <algorithm>
#include <fmt/format.h>
#include <unistd.h>

namespace host {
namespace {

using RefKind = LibraryReference::Kind;

constexpr int kLibraryNotRegistered = -2147319779;
constexpr int kErrorInLoadingDll = 48;

struct LanguageLibrary {
    std::string_view name, guid;
    std::uint32_t major, minor;
    std::string_view file, description;
};

/// What every project stands on, without a line of its own.
constexpr LanguageLibrary kLanguageLibraries[] = {
    {"VBA", "{000204EF-0000-0000-C000-000000000046}", 6, 0, "MSVBVM60.DLL", "Visual Basic For Applications"},
    {"VBRUN", "{EA544A21-C82D-11D1-A3E4-00A0C90AEA82}", 6, 0, "MSVBVM60.DLL\\3",
     "Visual Basic runtime objects and procedures"},
    {"VB", "{FCFB3D2E-A0FA-1068-A738-08002B3371B5}", 6, 0, "VB6.OLB", "Visual Basic objects and procedures"},
};
constexpr std::string_view kStdOle = "{00020430-0000-0000-C000-000000000046}";

bool isAlwaysKnown(const std::string& guid) {
    return guid == kStdOle || std::any_of(std::begin(kLanguageLibraries), std::end(kLanguageLibraries),
                                          [&](const auto& library) { return library.guid == guid; });
}

std::string baseNameIn(const std::string& path) {
    const auto name = path.substr(path.find_last_of("/\\") + 1);
    return name.substr(0, name.rfind('.'));
}

/// The cached description of a control library lies beside it under this name.
std::string cachedDescriptionOf(const std::string& path) {
    const auto slash = path.find_last_of("/\\");
    const auto point = path.rfind('.');
    const bool hasExtension = point != std::string::npos && (slash == std::string::npos || point > slash);
    return (hasExtension ? path.substr(0, point) : path) + ".oca";
}

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

} // namespace

// ---- a reference -------------------------------------------------------------------------------------------------------

ProjectReference::ProjectReference(LibraryReference line, std::string path, std::string name, bool builtIn, bool known)
    : line_(std::move(line)), path_(std::move(path)), name_(std::move(name)), builtIn_(builtIn), known_(known) {}

void ProjectReference::check() const {
    if (removed_) throwRemoved();
}

std::string ProjectReference::Name() const {
    check();
    return name_;
}

std::string ProjectReference::Guid() const {
    check();
    return line_.guid;
}

int ProjectReference::Major() const {
    check();
    return int(line_.major);
}

int ProjectReference::Minor() const {
    check();
    return int(line_.minor);
}

std::string ProjectReference::FullPath() const {
    check();
    return line_.kind == RefKind::Control ? cachedDescriptionOf(path_) : path_;
}

std::string ProjectReference::Description() const {
    check();
    return line_.description;
}

bool ProjectReference::BuiltIn() const {
    check();
    return builtIn_;
}

bool ProjectReference::IsBroken() const {
    check();
    return !known_ && ::access(path_.c_str(), F_OK) != 0;
}

// ---- the references of a project ---------------------------------------------------------------------------------------

std::shared_ptr<Project> ProjectReferences::project() const {
    if (!project_) throwRemoved();
    return project_->shared_from_this();
}

int ProjectReferences::Count() const {
    project();
    return int(list_.size());
}

vbide::Ref<vbide::Reference> ProjectReferences::Item(int index) const {
    if (index < 1 || index > Count()) throw hostError(basic::kSubscriptOutOfRange);
    return list_[std::size_t(index) - 1];
}

std::vector<vbide::Ref<vbide::Reference>> ProjectReferences::items() const {
    project();
    return {list_.begin(), list_.end()};
}

void ProjectReferences::load(const std::vector<ProjectFile::Member>& members) {
    for (const auto& library : kLanguageLibraries) {
        const auto line =
            libraryLine(RefKind::TypeLibrary,
                        {std::string(library.guid), library.major, library.minor, {}, std::string(library.description)},
                        std::string(library.file));
        list_.push_back(
            std::make_shared<ProjectReference>(line, std::string(library.file), std::string(library.name), true, true));
    }
    for (const auto& [place, content] : members) {
        if (!isReferenceKind(content.kind)) continue;
        const bool isObject = content.kind == MemberKind::Object;
        const auto line = isObject ? parseObjectLine(content.value) : parseReferenceLine(content.value);
        if (line.kind == RefKind::Unknown || line.kind == RefKind::OleObject) continue;
        auto reference = made(line);
        reference->member(place);
        list_.push_back(std::move(reference));
    }
}

std::shared_ptr<ProjectReference> ProjectReferences::made(const LibraryReference& line) const {
    const auto owner = project();
    const auto host = owner->host();
    const auto registered = host->libraries().find(line.guid, line.major, line.minor);
    // A path is only a hint, the GUID decides.
    const auto hint = owner->FileName().empty() ? "/" : owner->folder();
    auto path = registered && !registered->path.empty() ? registered->path : PathLookup().find(hint, line.path);
    std::string name;
    if (auto* classes = host->options().classes; classes && !line.guid.empty())
        if (const auto info = classes->TypeLibInfoFromFile(path)) name = info->Name;
    if (name.empty()) name = line.guid == kStdOle ? "stdole" : baseNameIn(line.path);
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
    auto reference = made(line);
    reference->member(place);
    list_.push_back(reference);
    owner->host()->tell(owner->referencesEvents->ItemAdded, reference);
    return reference;
}

vbide::Ref<vbide::Reference> ProjectReferences::AddFromGuid(const std::string& guid, int major, int minor) {
    const auto owner = project();
    const auto wanted = normalGuid(guid);
    if (wanted.empty() || major < 0 || minor < 0) throw hostError(basic::kInvalidProcedureCall);
    if (const auto standing = withGuid(wanted)) return standing;
    const auto library = owner->host()->libraries().find(wanted, std::uint32_t(major), std::uint32_t(minor));
    if (!library) throw hostError(kLibraryNotRegistered, fmt::format("{}: Library not registered", wanted));
    return add(MemberKind::Reference, libraryLine(RefKind::TypeLibrary, *library, owner->memberPath(library->path)));
}

vbide::Ref<vbide::Reference> ProjectReferences::AddFromFile(const std::string& path) {
    const auto owner = project();
    const auto native = absolutePath(path);
    if (::access(native.c_str(), F_OK) != 0) throw hostError(basic::kFileNotFound, native + ": File not found");
    if (native.size() > 4 && basic::equalNoCase(native.substr(native.size() - 4), ".vbp")) {
        LibraryReference line;
        line.kind = RefKind::Project;
        line.path = owner->memberPath(native);
        return add(MemberKind::Reference, line);
    }
    auto* classes = owner->host()->options().classes;
    const auto info = classes ? classes->TypeLibInfoFromFile(native) : nullptr;
    if (!info) throw hostError(kErrorInLoadingDll, native + ": Error in loading DLL");
    const auto guid = normalGuid(info->Guid);
    if (const auto standing = withGuid(guid)) return standing;
    const TypeLibrary library{guid, std::uint32_t(info->MajorVersion), std::uint32_t(info->MinorVersion), native,
                              info->Name};
    return add(MemberKind::Reference, libraryLine(RefKind::TypeLibrary, library, owner->memberPath(native)));
}

std::optional<ObjectLine> ProjectReferences::objectLineOf(const std::string& className) const {
    const auto library = className.substr(0, className.find('.'));
    for (const auto& reference : list_) {
        const auto& line = reference->line();
        const auto name = reference->Name();
        if (line.kind != RefKind::Control ||
            !(basic::equalNoCase(library, name) || basic::equalNoCase(library, name + "Ctl")))
            continue;
        const auto text = formatReference(line);
        return ObjectLine{text.substr(0, text.find(';')), line.path.substr(line.path.find_last_of("/\\") + 1)};
    }
    return std::nullopt;
}

void ProjectReferences::addControlLibrary(const std::string& progId) {
    const auto owner = project();
    const auto library = owner->host()->libraries().ofProgId(progId);
    if (!library) throw hostError(basic::kCantCreateObject, fmt::format("{}: Class not registered", progId));
    if (withGuid(library->guid)) return;
    const auto file = library->path.substr(library->path.find_last_of("/\\") + 1);
    add(MemberKind::Object, libraryLine(RefKind::Control, *library, file));
}

void ProjectReferences::Remove(const vbide::Ref<vbide::Reference>& reference) {
    const auto owner = project();
    const auto own = basic::cast<ProjectReference>(reference).shared();
    if (!own || own->BuiltIn() || std::find(list_.begin(), list_.end(), own) == list_.end())
        throw hostError(basic::kInvalidProcedureCall);
    owner->host()->tell(owner->referencesEvents->ItemRemoved, reference);
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
