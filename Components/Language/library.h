#pragma once
// The description of a library: what its modules, classes and enumerations offer to a program.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace language {

/// A parameter of a member. An empty type is Variant; other types are named as in a declaration ("Long", "Collection").
struct Parameter {
    std::string name, type;
    bool optional = false;
    bool byRef = false; ///< the member assigns to it
    bool paramArray = false;
    bool isArray = false;
    std::string defaultValue; ///< as written in a declaration; "" if there is none
};

enum class MemberKind : std::uint8_t { Sub, Function, Property, Constant, Event };

struct Member {
    MemberKind kind = MemberKind::Sub;
    std::string name; ///< with its type character, as in "Left$"
    std::vector<Parameter> parameters;
    std::string type;     ///< of a function, property or constant; empty for Variant
    bool isArray = false; ///< the result is an array
    std::string value;    ///< of a constant, as a literal of the language; texts may be joined from Chr(n)
    bool readable = true, writable = true; ///< of a property
    bool pure = false;                     ///< equal arguments give equal results, without effects
    bool isDefault = false;                ///< the default member of its class
    bool enumerates = false;               ///< For Each calls it
    bool hidden = false;                   ///< not offered by completion
    bool onDevices = true;
    std::string instead; ///< if not on devices: what to use instead, or why there is nothing
    std::string help;    ///< one sentence without a full stop; may be empty
};

enum class GroupKind : std::uint8_t { Module, Class, Enum };

/// A module, class or enumeration of a library.
struct Group {
    GroupKind kind = GroupKind::Module;
    std::string name;
    std::vector<Member> members;
    bool creatable = false; ///< New makes an object of the class
    bool global = false;    ///< the members of the class need no object, as those of a module
    bool open = false;      ///< the class has further members that are not described
    bool onDevices = true;
    std::string instead; ///< as for members
    std::string help;
};

struct Library {
    std::string name; ///< as it qualifies a name: "VBA"
    std::string help;
    std::vector<Group> groups;
};

/// Reads a library in the notation that Components/Language/README.md explains. Throws std::invalid_argument with the
/// line and what is wrong with it.
[[nodiscard]] Library readLibrary(std::string_view text);

/// The library of the language: functions, statements that are procedures, constants, Collection and ErrObject.
[[nodiscard]] const Library& languageLibrary();

/// The library of forms: Form, Control, App, Screen, Clipboard, Printer and the language's own controls.
[[nodiscard]] const Library& formsLibrary();

} // namespace language
