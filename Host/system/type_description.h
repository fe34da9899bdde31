#pragma once
// Type libraries: small description files that stand in a registered library's place.
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

/// A property, method or event. The type of a method without a result and of an event is "".
struct TypeMember {
    std::string name, type, help;
    std::vector<TypeParameter> parameters;
    fernwick::Variant defaultValue; ///< Empty where there is none
    bool readOnly = false;          ///< code can't set it
    bool design = true;             ///< it can be set while the form is designed
};

/// A creatable class with the members of its groups in front of its own; a module has functions only.
struct TypeClass {
    std::string name, progId, clsid, category, help;
    std::vector<TypeMember> properties, methods, events;
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
};

/// The description of the library that is registered under `path`: the file of that name with the extension ".toml"
/// (native path, letter case ignored where there is no exact match). "" where there is none.
std::string descriptionFileOf(const std::string& path);

/// Reads a description with its class files. Errors: 53 no such file; 321 for a faulty one, "file:line: reason".
TypeDescription readTypeDescription(const std::string& file);

/// As above, of the library alone, without its classes and modules.
TypeDescription readTypeDescriptionHead(const std::string& file);

} // namespace host
