#include "Basic/case_folding.h"
#include "Host/files/encoding.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/project.h"
#include "Host/model/project_references.h"
#include <algorithm>
#include <fmt/format.h>

namespace host {
namespace {

vbide::vbext_ComponentType typeOf(MemberKind kind, const SourceFile& source) {
    switch (kind) {
    case MemberKind::Form:
        return basic::equalNoCase(source.designerClass(), "VB.MDIForm") ? vbide::vbext_ct_VBMDIForm
                                                                        : vbide::vbext_ct_VBForm;
    case MemberKind::Class: return vbide::vbext_ct_ClassModule;
    case MemberKind::UserControl: return vbide::vbext_ct_UserControl;
    case MemberKind::PropertyPage: return vbide::vbext_ct_PropPage;
    case MemberKind::UserDocument: return vbide::vbext_ct_DocObject;
    case MemberKind::Designer: return vbide::vbext_ct_ActiveXDesigner;
    default: return vbide::vbext_ct_StdModule;
    }
}

/// A character that no source text has before it means that this is none.
bool hasBinaryStart(std::string_view bytes) noexcept {
    constexpr std::size_t kLooked = 512;
    const auto start = bytes.substr(0, kLooked);
    return std::any_of(start.begin(), start.end(), [](char c) {
        return static_cast<unsigned char>(c) < 0x20 && c != '\r' && c != '\n' && c != '\t' && c != '\f' && c != '\x1A';
    });
}

/// Files with a designer must begin with it; modules and classes may be bare code, but not bytes of another kind.
void refuseOtherFiles(MemberKind kind, const std::string& path, std::string_view bytes) {
    const auto parts = splitSource(bytes);
    const bool bare = parts.designer.empty();
    const bool mayBeBare = kind == MemberKind::Module || kind == MemberKind::Class;
    const bool other = mayBeBare ? bare && parts.attributes.empty() && hasBinaryStart(bytes) : bare;
    if (other) throw hostError(kInvalidFileFormat, fmt::format("{}: is not a Visual Basic source file", path));
}

std::string baseNameOfFile(const std::string& path) {
    const auto name = path.substr(path.rfind('/') + 1);
    return name.substr(0, name.rfind('.'));
}

} // namespace

MemberKind memberKindOf(vbide::vbext_ComponentType type) noexcept {
    switch (type) {
    case vbide::vbext_ct_VBForm:
    case vbide::vbext_ct_VBMDIForm: return MemberKind::Form;
    case vbide::vbext_ct_ClassModule: return MemberKind::Class;
    case vbide::vbext_ct_UserControl: return MemberKind::UserControl;
    case vbide::vbext_ct_PropPage: return MemberKind::PropertyPage;
    case vbide::vbext_ct_DocObject: return MemberKind::UserDocument;
    case vbide::vbext_ct_ActiveXDesigner: return MemberKind::Designer;
    default: return MemberKind::Module;
    }
}

void Project::load() {
    auto content = readFile(path_);
    const auto page = codePageOf(content.bytes, host()->options().codePage);
    auto file = std::make_unique<ProjectFile>(content.bytes, page);
    if (!file->looksLikeProject())
        throw hostError(kInvalidFileFormat, fmt::format("{}: is not a Visual Basic project file", path_));
    file_ = std::move(file);
    stamp_ = content.stamp;
    loadMembers();
}

void Project::loadText(const std::string& text) {
    file_ = std::make_unique<ProjectFile>(text, host()->options().codePage);
    loadMembers();
    dirty_ = true;
}

void Project::loadMembers() {
    const auto members = file_->members();
    references_->load(members);
    PathLookup lookup;
    std::unordered_set<std::string> seen;
    for (const auto& member : members)
        if (isComponentKind(member.content.kind)) loadMember(member, lookup, seen);
}

void Project::loadMember(const ProjectFile::Member& member, PathLookup& lookup, std::unordered_set<std::string>& seen) {
    const auto& [kind, listedName, value, line] = member.content;
    const auto path = lookup.find(folder(), value);
    if (!seen.insert(path).second) return problem(path_, line, fmt::format("{}: is listed twice", value));
    try {
        const auto component = readComponent(kind, path, listedName);
        if (!components_->take(component))
            return problem(path_, line,
                           fmt::format("{}: another component is named '{}' too", value, component->Name()));
        component->member(member.place);
        if (!component->source().isWhole()) problem(path, 0, fmt::format("{}: ends inside its designer part", path));
    } catch (const basic::RuntimeError& error) { problem(path_, line, error.Description); }
}

LoadedSource Project::sourceOf(MemberKind kind, std::string bytes, const std::string& path) const {
    refuseOtherFiles(kind, path, bytes);
    const auto page = codePageOf(bytes, host()->options().codePage);
    SourceFile source(std::move(bytes), page);
    const auto type = typeOf(kind, source);
    auto name = source.name();
    return {std::move(source), type, std::move(name), {}};
}

LoadedSource Project::readSource(MemberKind kind, const std::string& path) const {
    auto content = readFile(path);
    auto loaded = sourceOf(kind, std::move(content.bytes), path);
    loaded.stamp = content.stamp;
    return loaded;
}

std::shared_ptr<Component> Project::readComponent(MemberKind kind, const std::string& path,
                                                  const std::string& listedName) {
    auto loaded = readSource(kind, path);
    if (loaded.name.empty()) loaded.name = listedName;
    if (loaded.name.empty()) loaded.name = baseNameOfFile(path);
    return std::make_shared<Component>(shared_from_this(), loaded.type, std::move(loaded.name),
                                       std::move(loaded.source), ComponentOrigin{path, loaded.stamp, {}});
}

void Project::problem(const std::string& file, std::size_t line, std::string text) {
    problems_.push_back({file, line, std::move(text)});
}

} // namespace host
