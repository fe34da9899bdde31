#pragma once
// The kinds of components: their lines in the project file, their files and their names.
#include "Add-in/platform/host_project.h"
#include "Host/files/project_keys.h"
#include <optional>
#include <string>
#include <string_view>

namespace host {

struct ComponentKind {
    vbide::vbext_ComponentType type;
    MemberKind member;
    std::string_view extension;
    std::string_view companion; ///< the extension of the binary companion, if it is not .frx
    std::string_view newName;   ///< the stem of new names; "" if the IDE cannot create such a component
    bool hasDesigner;
};

/// Standard module for a type that is not a component's.
const ComponentKind& kindOf(vbide::vbext_ComponentType type) noexcept;

/// The stem of the names of new components; "" for a type that the IDE cannot create.
std::string_view newNameOf(vbide::vbext_ComponentType type) noexcept;

/// The type of a component in a project's line. `designerClass` distinguishes forms from MDI forms.
vbide::vbext_ComponentType typeOf(MemberKind kind, std::string_view designerClass) noexcept;

/// The kind of a source file, by its extension; nothing for any other file.
std::optional<MemberKind> memberKindOfFile(const std::string& path) noexcept;

/// The path of the binary companion of a component's file: .frx for .frm, .ctx for .ctl and so on.
std::string companionOf(const std::string& path);

} // namespace host
