#pragma once
// Functions of the runtime that compiled code calls by name.
#include "Basic/case_folding.h"
#include "Components/Image/code/code_image.h"
#include "Components/Tamarik/natives/session.h"
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tamarik {

/// Arguments lie in consecutive slots, as in a frame, and are released by the machine. `result` is a new reference.
struct NativeCall {
    Session& session;
    const Slot* arguments;
    Slot result[2];
    /// The types with which the program calls, and the program; null in tests of plain functions.
    const image::Import* import = nullptr;
    const image::CodeImage* code = nullptr;
};

/// In the place of a number in the type of a native's parameter: it takes all records, or objects of all classes.
inline constexpr std::uint32_t kAnyId = 0xFFFFFFFF;

/// A function does not call code. It may throw basic::RuntimeError.
struct Native {
    image::SlotType result;
    std::vector<image::SlotType> parameters;
    void (*call)(NativeCall&) = nullptr;
};

/// Names ignore case.
class Natives {
public:
    /// Replaces functions with the same name.
    void add(std::string_view name, Native native) { natives_[std::string(name)] = {std::move(native)}; }
    /// Adds a function that differs from those with the same name in its types.
    void addForm(std::string_view name, Native native) { natives_[std::string(name)].push_back(std::move(native)); }
    /// A class that New and CreateObject can make.
    void addClass(std::string_view name, ObjectMaker maker) { classes_[std::string(name)] = maker; }
    [[nodiscard]] const LibraryClasses& classes() const { return classes_; }
    /// In alphabetical order.
    [[nodiscard]] std::vector<std::string> names() const;
    /// All functions with a name.
    [[nodiscard]] std::span<const Native> find(std::string_view name) const;
    /// Null if there is no function with exactly these types.
    [[nodiscard]] const Native* find(std::string_view name, image::SlotType result,
                                     std::span<const image::SlotType> parameters) const;

private:
    std::unordered_map<std::string, std::vector<Native>, basic::NoCaseHash, basic::NoCaseEqual> natives_;
    LibraryClasses classes_;
};

} // namespace tamarik
