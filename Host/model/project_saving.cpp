// Saving a project, and its lines for the files of its components.
#include "Host/files/library_reference.h"
#include "Host/files/native_path.h"
#include "Host/files/system_error.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/host.h"
#include "Host/model/project.h"
#include <fmt/format.h>
#include <functional>

namespace host {
namespace {

/// False for absolute paths, also for those with a drive.
bool isRelativePath(const std::string& path) {
    const bool fromDrive = path.size() > 1 && path[1] == ':';
    return !path.empty() && !fromDrive && path.front() != '\\' && path.front() != '/';
}

/// The value of a member line, with its path converted by `moved`.
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

/// The name in a component's line: those of modules and classes have one.
std::string lineName(const Component& component) {
    return lineHoldsName(kindOf(component.Type()).member) ? component.Name() : std::string();
}

} // namespace

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

/// Returns false if a handler cancelled it.
bool Project::save(const std::optional<FileStamp>& asRead) {
    const auto stamp = host()->writeFile(*this, path_, file_->bytes(), asRead);
    if (!stamp) return false;
    stamp_ = stamp;
    dirty_.set(false);
    return true;
}

std::string Project::memberPath(const std::string& path) const {
    return path_.empty() ? path : writtenPath(folder(), path);
}

/// Adapts the paths of member lines, which are relative to the project, to another folder. Keeps the old lines.
void Project::moveTo(const std::string& path, MovedLines& oldLines) {
    const auto oldFolder = folder();
    const auto newFolder = folderOf(path);
    const auto set = [&](ProjectFile::Place line, const std::string& name, const std::string& value) {
        oldLines.emplace_back(line, line->text);
        file_->setMember(line, name, value);
    };
    PathLookup lookup;
    const auto moved = [&](const std::string& written) {
        return writtenPath(newFolder, lookup.find(oldFolder, written));
    };
    if (oldFolder.empty())
        for (const auto& component : components_->list()) {
            if (component->member())
                set(*component->member(), lineName(*component), writtenPath(newFolder, component->path()));
        }
    else if (oldFolder != newFolder)
        for (const auto& [line, member] : file_->members()) set(line, member.name, movedValue(member, moved));
    path_ = path;
}

void Project::writeMember(Component& component) {
    if (component.path().empty()) return;
    const auto name = lineName(component);
    // Without a file of its own the project's lines are provisional, and its code page may lack characters of the path.
    const auto value = path_.empty() ? file_->storableText(component.path()) : memberPath(component.path());
    if (component.member())
        file_->setMember(*component.member(), name, value);
    else
        component.member(file_->addMember(kindOf(component.Type()).member, name, value));
    edited();
}

void Project::dropMember(Component& component) {
    if (component.member()) file_->removeMember(*component.member());
    component.member({});
}

} // namespace host
