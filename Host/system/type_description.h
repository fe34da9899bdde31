#pragma once
// Type libraries as small description files, which replace the registered libraries.
#include "Add-in/platform/variant.h"
#include <optional>
#include <string>
#include <vector>

namespace host {

struct TypeParameter {
    std::string name, type;
    bool optional = false;
    bool byRef = false;
};

/// A property, method or event. The type of events and of methods without a result is "".
struct TypeMember {
    std::string name, type, help;
    std::vector<TypeParameter> parameters;
    fernwick::Variant defaultValue; ///< Empty if there is none
    bool readOnly = false;          ///< cannot be set by code
    bool design = true;             ///< can be set in the designer
};

/// A creatable class with the members of its groups before its own. A module has only functions.
struct TypeClass {
    std::string name, progId, clsid, category, help;
    std::vector<TypeMember> properties, methods, events;
    int width = 0, height = 0;      ///< of a new control in pixels; 0 if the description does not say
    std::string defaultMember = {}; ///< "" if the class has none
    std::string extends = {};       ///< of a form: the class of the language whose members on devices it has, "VB.Form"
};

struct TypeValue {
    std::string name;
    long value = 0;
};
struct TypeEnumeration {
    std::string name;
    std::vector<TypeValue> values;
};

struct TypeDescription {
    std::string name, guid, help;
    int majorVersion = 0, minorVersion = 0;
    std::vector<TypeEnumeration> enumerations;
    std::vector<TypeClass> classes;
    std::vector<TypeClass> modules;
    std::optional<TypeClass> form = {}; ///< the forms that contain the controls
};

/// Returns the native path of the description of the library registered as `path`: the file of that name with the
/// extension ".toml", found ignoring letter case if there is no exact match. "" if there is none.
std::string descriptionFileOf(const std::string& path);

/// Reads a description with its class files. Errors: 53 no such file; 321 for an invalid one, "file:line: reason".
TypeDescription readTypeDescription(const std::string& file);

/// As above, but without enumerations, classes and modules.
TypeDescription readTypeDescriptionHead(const std::string& file);

} // namespace host
