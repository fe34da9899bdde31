#pragma once
// A compiled application as a value, and its container format, described in docs/qlx-format.md.
#include "Components/Image/code/code_image.h"
#include "Components/Image/shared_text.h"
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace image {

/// A property of a form or control. The value is the literal in the form's text: "-1", "\"Hello\"", "&H00FF0000&".
struct Property {
    SharedText name, value;
    friend bool operator==(const Property&, const Property&) = default;
};

/// A form, or a control on it, with its children in the order of the form's text.
struct Control {
    static constexpr std::int32_t kNoIndex = -1;

    SharedText className, name;
    /// Index in a control array, or kNoIndex.
    std::int32_t index = kNoIndex;
    std::vector<Property> properties;
    std::vector<Control> children;
    friend bool operator==(const Control&, const Control&) = default;
};

enum class MemberKind : std::uint8_t { Sub, Function, PropertyGet, PropertyLet, PropertySet, Event, Declare };

/// A procedure, event or Declare of a module. Lines are physical lines from 1.
struct Member {
    MemberKind kind = MemberKind::Sub;
    bool isPublic = true;
    SharedText name;
    std::uint32_t firstLine = 0;
    std::uint32_t parameters = 0;
    friend bool operator==(const Member&, const Member&) = default;
};

enum class ModuleKind : std::uint8_t { Module, Class, Form };

struct Module {
    ModuleKind kind = ModuleKind::Module;
    /// Module name, and file name without folder.
    SharedText name, file;
    std::uint32_t lines = 0;
    std::vector<Member> members;
    /// Distinct string literals of the code, in the order of their first use.
    std::vector<SharedText> strings;
    friend bool operator==(const Module&, const Module&) = default;
};

struct Image {
    SharedText compilerVersion;
    SharedText projectName;
    /// Name of the startup object, "Sub Main" or "".
    SharedText startup;
    /// Version information in its original order.
    std::vector<std::pair<SharedText, SharedText>> info;
    std::vector<std::pair<SharedText, std::int32_t>> constants;
    std::vector<SharedText> libraries;
    std::vector<Control> forms;
    std::vector<Module> modules;
    CodeImage code; ///< empty if the application was not compiled to code
    friend bool operator==(const Image&, const Image&) = default;
};

// Limits of writers and readers.
/// Bytes.
inline constexpr std::int64_t kLargestImage = 64 * 1024 * 1024;
/// Controls inside each other, below their form.
inline constexpr int kDeepestControl = 200;

/// Returns the bytes of the container. Equal images have equal bytes. Raises error 321 for an image beyond the limits.
std::string encode(const Image& image);

/// Returns the image in a container. Raises error 321 (invalid file format) with the reason if the bytes are damaged or
/// have an unsupported version.
Image decode(std::string_view bytes);

/// Returns the name and size of each section, in the order of the container. Raises error 321 as `decode` does.
std::vector<std::pair<std::string, std::size_t>> sectionSizes(std::string_view bytes);

} // namespace image
