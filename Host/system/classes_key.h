#pragma once
// Keys of HKEY_CLASSES_ROOT.
#include "Add-in/platform/registry.h"
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// A key that stays open for reading during the object's lifetime; empty if it does not exist.
class ClassesKey {
public:
    ClassesKey(fernwick::Registry& registry, const std::string& path);
    ClassesKey(const ClassesKey&) = delete;
    ClassesKey& operator=(const ClassesKey&) = delete;
    ~ClassesKey();
    explicit operator bool() const { return key_ != 0; }

    /// The key's default value; nothing if it is not set or not a text.
    std::optional<std::string> defaultText() const;
    std::vector<std::string> subKeys() const;

private:
    fernwick::Registry& registry_;
    std::uint32_t key_ = 0;
};

/// Returns the default value of a key; nothing if there is no such key or text.
std::optional<std::string> classesText(fernwick::Registry& registry, const std::string& path);

} // namespace host
