#pragma once
// The keys of a project file (.vbp): members, and settings in the order in which the IDE writes them.
// Source: counted in real project files; Microsoft, "Project File (.vbp) Format", Visual Basic Concepts.
#include <array>
#include <optional>
#include <string_view>

namespace host {

/// The kind of a member line. Members precede the settings, in the order of their insertion.
enum class MemberKind {
    Reference,
    Object,
    Form,
    Module,
    Class,
    UserControl,
    PropertyPage,
    UserDocument,
    Designer,
    RelatedDoc,
};

/// Returns the kind of a key, ignoring case; nothing for a setting or an unknown key.
std::optional<MemberKind> memberKindOfKey(std::string_view key) noexcept;
std::string_view keyOfMemberKind(MemberKind kind) noexcept;

/// True for the kinds whose line is "Name; path" and not only a path.
bool lineHoldsName(MemberKind kind) noexcept;

/// True for the kinds that are components of the project: all but references, controls and related documents.
bool isComponentKind(MemberKind kind) noexcept;

struct SettingKey {
    std::string_view key;
    bool quoted;
};

/// All known settings in the order in which the IDE writes them. "Type" is first, before the members.
extern const std::array<SettingKey, 49> kSettingOrder;

/// Returns the position of a key in kSettingOrder, ignoring case; nothing for an unknown key.
std::optional<std::size_t> placeOfSetting(std::string_view key) noexcept;

} // namespace host
