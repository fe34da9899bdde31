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
    PathLookup lookup;
    const auto moved = [&](const std::string& written) {
        return writtenPath(newFolder, lookup.find(oldFolder, written));
    };
    if (oldFolder != newFolder)
        for (const auto& [line, member] : file_->members()) {
            if (oldFolder.empty() && !isComponentKind(member.kind)) continue; // not yet relative
            oldLines.emplace_back(line, line->text);
            file_->setMember(line, member.name, movedValue(member, moved));
        }
    path_ = path;
}

void Project::writeMember(Component& component) {
    if (component.path().empty()) return;
    const auto kind = kindOf(component.Type()).member;
    const auto name = lineHoldsName(kind) ? component.Name() : std::string();
    const auto value = memberPath(component.path());
    if (component.member())
        file_->setMember(*component.member(), name, value);
    else
        component.member(file_->addMember(kind, name, value));
    edited();
}

void Project::dropMember(Component& component) {
    if (component.member()) file_->removeMember(*component.member());
    component.member({});
}

} // namespace host
