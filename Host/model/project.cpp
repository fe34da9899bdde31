#include "Host/model/project.h"
#include "Basic/case_folding.h"
#include "Host/files/atomic_save.h"
#include "Host/files/library_reference.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/project_references.h"
#include <fmt/format.h>
#include <functional>

namespace host {
namespace {

std::string baseNameOf(const std::string& path) {
    const auto name = path.substr(path.rfind('/') + 1);
    return name.substr(0, name.rfind('.'));
}

/// A path of another drive or without a folder of its own is no path from the project's folder.
bool isRelativePath(const std::string& path) {
    const bool fromDrive = path.size() > 1 && path[1] == ':';
    return !path.empty() && !fromDrive && path.front() != '\\' && path.front() != '/';
}

/// A member line's value when the paths in it become what `moved` makes of them.
std::string movedValue(const ProjectMember& member, const std::function<std::string(const std::string&)>& moved) {
    if (member.kind == MemberKind::Object) {
        auto line = parseObjectLine(member.value);
        if (line.kind != LibraryReference::Kind::ControlProject) return member.value;
        line.path = moved(line.path);
        return formatReference(line);
    }
    if (member.kind != MemberKind::Reference) return moved(member.value);
    auto line = parseReferenceLine(member.value);
    if (line.kind == LibraryReference::Kind::Unknown || !isRelativePath(line.path)) return member.value;
    line.path = moved(line.path);
    return formatReference(line);
}

} // namespace

Project::Project(const std::shared_ptr<Host>& host, std::string path)
    : host_(host),
      path_(std::move(path)),
      file_(std::make_unique<ProjectFile>("", host->options().codePage)),
      components_(std::make_shared<Components>(*this)),
      references_(std::make_shared<ProjectReferences>(*this)) {}

Project::~Project() { close(); }

std::shared_ptr<Host> Project::host() const {
    auto host = host_.lock();
    if (!host) throwRemoved();
    return host;
}

void Project::close() {
    components_->close();
    references_->close();
    host_.reset();
}

std::string Project::folder() const { return path_.substr(0, path_.rfind('/')); }

// ---- name and state ----------------------------------------------------------------------------------------------------

std::string Project::Name() const {
    host();
    const auto name = file_->setting("Name").value_or("");
    return name.empty() ? baseNameOf(path_) : name;
}

void Project::Name(const std::string& name) {
    const auto host = this->host();
    const auto oldName = Name();
    if (name == oldName) return;
    if (name.empty()) throw hostError(basic::kInvalidPropertyValue);
    for (const auto& other : host->VBProjects()->items())
        if (other != vbide::Ref<vbide::VBProject>(shared_from_this()) && basic::equalNoCase(other->Name(), name))
            throwNameTaken(name);
    file_->setSetting("Name", name);
    dirty_ = true;
    host->tell(host->projectsEvents().ItemRenamed, shared_from_this(), oldName);
}

std::string Project::FileName() const {
    host();
    return path_;
}

bool Project::IsDirty() const {
    host();
    return dirty_;
}

void Project::IsDirty(bool dirty) {
    host();
    dirty_ = dirty;
}

bool Project::Saved() const { return !IsDirty(); }

std::string Project::ReadProperty(const std::string& section, const std::string& key) const {
    host();
    return file_->readProperty(section, key);
}

void Project::WriteProperty(const std::string& section, const std::string& key, const std::string& value) {
    host();
    if (file_->writeProperty(section, key, value)) dirty_ = true;
}

void Project::AddToolboxProgID(const std::string& progId) {
    host();
    references_->addControlLibrary(progId);
}

vbide::Ref<vbide::References> Project::References() {
    host();
    return references_;
}

vbide::Ref<vbide::VBComponents> Project::VBComponents() {
    host();
    return components_;
}

vbide::Ref<vbide::VBE> Project::VBE() const { return host(); }

// ---- saving ------------------------------------------------------------------------------------------------------------

void Project::SaveAs(const std::string& path) {
    host();
    if (path.empty()) throw hostError(basic::kPathFileAccessError, fmt::format("{}: has no file name", Name()));
    const auto target = absolutePath(path);
    if (target == path_) {
        save(stamp_);
        return;
    }
    const auto oldPath = path_;
    MovedLines oldLines;
    const auto goBack = [&] {
        path_ = oldPath;
        for (const auto& [line, text] : oldLines) line->text = text;
    };
    bool saved = false;
    try {
        moveTo(target, oldLines);
        saved = save({});
    } catch (const basic::RuntimeError&) {
        goBack();
        throw;
    }
    if (!saved) goBack();
}

/// False when a handler cancelled it.
bool Project::save(const std::optional<FileStamp>& asRead) {
    const auto stamp = host()->writeFile(*this, path_, file_->bytes(), asRead);
    if (!stamp) return false;
    stamp_ = stamp;
    dirty_ = false;
    return true;
}

std::string Project::memberPath(const std::string& path) const {
    return path_.empty() ? path : writtenPath(folder(), path);
}

/// The paths of member lines are relative to the project: they follow it to another folder. Notes the lines as they were.
void Project::moveTo(const std::string& path, MovedLines& oldLines) {
    const auto oldFolder = folder();
    const auto newFolder = path.substr(0, path.rfind('/'));
    PathLookup lookup;
    const auto moved = [&](const std::string& written) {
        return writtenPath(newFolder, lookup.find(oldFolder, written));
    };
    if (oldFolder != newFolder)
        for (const auto& [line, member] : file_->members()) {
            if (oldFolder.empty() && !isComponentKind(member.kind)) continue; // relative to nothing yet
            oldLines.emplace_back(line, line->text);
            file_->setMember(line, member.name, movedValue(member, moved));
        }
    path_ = path;
}

void Project::writeMember(Component& component) {
    if (component.path().empty()) return;
    const auto kind = memberKindOf(component.Type());
    const auto name = lineHoldsName(kind) ? component.Name() : std::string();
    const auto value = memberPath(component.path());
    if (component.member())
        file_->setMember(*component.member(), name, value);
    else
        component.member(file_->addMember(kind, name, value));
    dirty_ = true;
}

void Project::dropMember(Component& component) {
    if (component.member()) file_->removeMember(*component.member());
    component.member({});
}

void Project::followRename(const std::string& oldName, const std::string& newName) {
    for (const auto* key : {"Startup", "IconForm"})
        if (basic::equalNoCase(file_->setting(key).value_or(""), oldName)) file_->setSetting(key, newName);
}

void Project::becomeNew() {
    path_.clear();
    stamp_.reset();
    dirty_ = true;
    for (const auto& component : components_->list()) {
        dropMember(*component);
        component->becomeNew();
    }
}

} // namespace host
