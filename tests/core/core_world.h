#pragma once
// The modules of the core over a registry in memory.
#include "tests/support/add_in_world.h"
#include <set>

namespace test {

/// A registry in which whole roots are read-only.
class GuardedRegistry : public MemoryRegistry {
public:
    std::set<std::uint32_t> readOnlyRoots;
    /// Whether keys and values disappear between being counted and read.
    bool losesEntries = false;

    std::int32_t RegOpenKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t access,
                              std::uint32_t& result) override {
        if ((access & fernwick::KEY_SET_VALUE) && readOnlyRoots.contains(key)) return fernwick::ERROR_ACCESS_DENIED;
        return MemoryRegistry::RegOpenKeyEx(key, subKey, access, result);
    }
    std::int32_t RegCreateKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t access,
                                std::uint32_t& result, std::uint32_t& disposition) override {
        if (readOnlyRoots.contains(key)) return fernwick::ERROR_ACCESS_DENIED;
        return MemoryRegistry::RegCreateKeyEx(key, subKey, access, result, disposition);
    }
    std::int32_t RegEnumKeyEx(std::uint32_t key, std::uint32_t index, std::string& name) override {
        return losesEntries ? fernwick::ERROR_NO_MORE_ITEMS : MemoryRegistry::RegEnumKeyEx(key, index, name);
    }
    std::int32_t RegEnumValue(std::uint32_t key, std::uint32_t index, std::string& name, std::uint32_t& type,
                              std::string& data) override {
        if (losesEntries) return fernwick::ERROR_NO_MORE_ITEMS;
        return MemoryRegistry::RegEnumValue(key, index, name, type, data);
    }
};

struct GuardedPlatform : TracedPlatform {
    GuardedRegistry store;
    fernwick::Platform platform{user,      loop,  store,  files,   processes, classes,   environment,
                                clipboard, shell, screen, windows, clock,     resources, TracedPlatform::platform.app};
};

class CoreTest : public ::testing::Test, protected AddInWorld<GuardedPlatform> {
protected:
    static constexpr auto kUser = fernwick::HKEY_CURRENT_USER;
    static constexpr auto kMachine = fernwick::HKEY_LOCAL_MACHINE;
    static constexpr const char* kPrefs = "SOFTWARE\\Quinloft\\AddinPrefs";
    static constexpr const char* kMyDevices = "SOFTWARE\\Quinloft\\AddinPrefs\\MyDevices";
    static constexpr const char* kGroups = "SOFTWARE\\Quinloft\\AddinPrefs\\TavletGroups";
    static constexpr const char* kAddIn = "SOFTWARE\\Quinloft\\Embedded Toolkit\\AddIn";

    ~CoreTest() override { EXPECT_EQ(store.openKeys(), 0U) << "a registry key stayed open"; }

    void setText(std::uint32_t root, const char* path, const char* name, const std::string& text) {
        store.set(root, path, name, text);
    }
    void setNumber(std::uint32_t root, const char* path, const char* name, std::int32_t number) {
        const std::uint32_t key = registry.OpenOrCreateKey(root, path, fernwick::KEY_ALL_ACCESS);
        registry.SetValue(key, name, number, fernwick::REG_DWORD);
        registry.CloseKey(key);
    }
    /// "type:text" of a stored value, "" for none.
    std::string stored(std::uint32_t root, const char* path, const char* name) {
        const fernwick::RegistryKey key{registry, registry.OpenKey(root, path, fernwick::KEY_QUERY_VALUE)};
        if (!key) return {};
        const auto value = registry.GetStringValue(key.handle(), name);
        return value.ok() ? std::to_string(value.type) + ":" + value.text : "";
    }

    fernwick::modRegistry2& registry = Modules::registry;
};

} // namespace test
