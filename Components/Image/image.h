#pragma once
// A compiled application as a value, and the container that it is stored in. docs/qlx-format.md tells the format.
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace image {

/// A property as the form's text has it; the value is the literal ("-1", "\"Hello\"", "&H00FF0000&").
struct Property {
    std::string name, value;
    friend bool operator==(const Property&, const Property&) = default;
};

/// A form or a control on it, with its children in the order of the form's text.
struct Control {
    static constexpr std::int32_t kNoIndex = -1;

    std::string className, name;
    /// Index in a control array; kNoIndex outside of one.
    std::int32_t index = kNoIndex;
    std::vector<Property> properties;
    std::vector<Control> children;
    friend bool operator==(const Control&, const Control&) = default;
};

enum class MemberKind : std::uint8_t { Sub, Function, PropertyGet, PropertyLet, PropertySet, Event, Declare };

/// What a module offers to others: name, and physical lines from 1.
struct Member {
    MemberKind kind = MemberKind::Sub;
    bool isPublic = true;
    std::string name;
    std::uint32_t firstLine = 0;
    std::uint32_t parameters = 0;
    friend bool operator==(const Member&, const Member&) = default;
};

enum class ModuleKind : std::uint8_t { Module, Class, Form };

struct Module {
    ModuleKind kind = ModuleKind::Module;
    /// Name, and the file without its folder.
    std::string name, file;
    std::uint32_t lines = 0;
    std::vector<Member> members;
    /// String literals of the code, each once, in the order of their first use.
    std::vector<std::string> strings;
    friend bool operator==(const Module&, const Module&) = default;
};

struct Image {
    std::string compilerVersion;
    std::string projectName;
    /// Name of the start-up component, "Sub Main" or "".
    std::string startup;
    /// Version information in the order in which it was given.
    std::vector<std::pair<std::string, std::string>> info;
    std::vector<std::pair<std::string, std::int32_t>> constants;
    std::vector<std::string> libraries;
    std::vector<Control> forms;
    std::vector<Module> modules;
    friend bool operator==(const Image&, const Image&) = default;
};

/// The same image gives the same bytes.
std::string encode(const Image& image);

/// Error 321 (invalid file format), with what is wrong, for bytes that are no whole and undamaged image of a
/// version that this compiler reads.
Image decode(std::string_view bytes);

} // namespace image
