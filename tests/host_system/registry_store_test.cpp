#include "Host/registry/reg_status.h"
#include "Host/registry/registry_store.h"
#include "tests/host_system/temp_folder.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace fernwick;
using namespace std::string_literals;

namespace {

class RegistryFunctions : public testing::Test {
protected:
    std::uint32_t create(std::uint32_t root, const std::string& subKey) {
        std::uint32_t key = 0, disposition = 0;
        EXPECT_EQ(store.RegCreateKeyEx(root, subKey, KEY_ALL_ACCESS, key, disposition), 0);
        return key;
    }
    std::uint32_t open(std::uint32_t root, const std::string& subKey, std::uint32_t access = KEY_READ) {
        std::uint32_t key = 0;
        status = store.RegOpenKeyEx(root, subKey, access, key);
        return key;
    }
    void set(std::uint32_t key, const std::string& name, const std::string& text) {
        EXPECT_EQ(store.RegSetValueEx(key, name, REG_SZ, text + '\0'), 0);
    }
    std::string get(std::uint32_t key, const std::string& name) {
        std::string data(1000, '?');
        std::uint32_t length = 0;
        status = store.RegQueryValueEx(key, name, type, data, length);
        return status == 0 ? data.substr(0, length) : "status " + std::to_string(status);
    }
    std::vector<std::string> subkeys(std::uint32_t key) {
        std::vector<std::string> names(1);
        while ((status = store.RegEnumKeyEx(key, static_cast<std::uint32_t>(names.size() - 1), names.back())) == 0)
            names.emplace_back();
        names.pop_back();
        return names;
    }
    std::vector<std::string> values(std::uint32_t key) {
        std::vector<std::string> names(1);
        std::string data;
        while ((status = store.RegEnumValue(key, static_cast<std::uint32_t>(names.size() - 1), names.back(), type,
                                            data)) == 0)
            names.emplace_back();
        names.pop_back();
        return names;
    }

    TempFolder folder;
    host::RegistryPlaces places{folder / "config/fernwick", folder / "machine", {}};
    host::RegistryStore store{places};
    std::int32_t status = 0;
    std::uint32_t type = 0;
};

/// An independent store, as in another process.
struct OtherProcess : host::RegistryStore {
    using RegistryStore::RegistryStore;
};

const std::string kPrefs = "SOFTWARE\\Quinloft\\AddinPrefs";

} // namespace

TEST_F(RegistryFunctions, ReadingCreatesNoFiles) {
    EXPECT_EQ(open(HKEY_CURRENT_USER, kPrefs), 0u);
    EXPECT_EQ(status, 2);
    EXPECT_EQ(open(HKEY_LOCAL_MACHINE, kPrefs, KEY_ALL_ACCESS), 0u);
    EXPECT_EQ(status, 2);
    EXPECT_TRUE(subkeys(HKEY_CURRENT_USER).empty());
    EXPECT_EQ(get(HKEY_CURRENT_USER, "v"), "status 2");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(RegistryFunctions, KeepValuesForAnotherProcess) {
    const auto key = create(HKEY_CURRENT_USER, kPrefs);
    set(key, "ZoomWinState", "1");
    OtherProcess other{places};
    std::uint32_t there = 0, otherType = 0, length = 0;
    ASSERT_EQ(other.RegOpenKeyEx(HKEY_CURRENT_USER, "software\\QUINLOFT\\addinprefs", KEY_READ, there), 0);
    std::string data(2, '?');
    EXPECT_EQ(other.RegQueryValueEx(there, "zoomwinstate", otherType, data, length), 0);
    EXPECT_EQ(data, "1\0"s);
    EXPECT_EQ(otherType, REG_SZ);
    EXPECT_EQ(length, 2u);
}

TEST_F(RegistryFunctions, CreateDistinguishesNewFromExisting) {
    std::uint32_t key = 0, disposition = 0;
    EXPECT_EQ(store.RegCreateKeyEx(HKEY_CURRENT_USER, "A\\B", 15, key, disposition), 0);
    EXPECT_EQ(disposition, 1u);
    EXPECT_EQ(store.RegCreateKeyEx(HKEY_CURRENT_USER, "a\\b", 15, key, disposition), 0);
    EXPECT_EQ(disposition, 2u);
    EXPECT_EQ(subkeys(HKEY_CURRENT_USER), std::vector<std::string>{"A"});
}

TEST_F(RegistryFunctions, QueryingTheSizeReturnsMoreData) {
    const auto key = create(HKEY_CURRENT_USER, "A");
    set(key, "v", "text");
    std::string none;
    std::uint32_t length = 0;
    EXPECT_EQ(store.RegQueryValueEx(key, "v", type, none, length), 234);
    EXPECT_EQ(length, 5u);
    EXPECT_EQ(type, REG_SZ);
    std::string tooShort = "????";
    EXPECT_EQ(store.RegQueryValueEx(key, "v", type, tooShort, length), 234);
    EXPECT_EQ(tooShort, "????");
    std::string roomy = "???????";
    EXPECT_EQ(store.RegQueryValueEx(key, "v", type, roomy, length), 0);
    EXPECT_EQ(roomy, "text\0??"s);
}

TEST_F(RegistryFunctions, QueryingAnEmptyValueReturnsSuccess) {
    const auto key = create(HKEY_CURRENT_USER, "A");
    ASSERT_EQ(store.RegSetValueEx(key, "v", REG_SZ, ""), 0);
    std::string none;
    std::uint32_t length = 9;
    EXPECT_EQ(store.RegQueryValueEx(key, "v", type, none, length), 0);
    EXPECT_EQ(length, 0u);
}

TEST_F(RegistryFunctions, KeepEveryTypeAndByte) {
    const auto key = create(HKEY_CURRENT_USER, "A");
    std::string all;
    for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
    ASSERT_EQ(store.RegSetValueEx(key, "binary", REG_BINARY, all), 0);
    ASSERT_EQ(store.RegSetValueEx(key, "number", REG_DWORD, "\xFF\xFF\xFF\xFF"), 0);
    ASSERT_EQ(store.RegSetValueEx(key, "odd", 0xFFFFFFFF, "x"), 0);
    EXPECT_EQ(get(key, "binary"), all);
    EXPECT_EQ(type, REG_BINARY);
    EXPECT_EQ(get(key, "number"), "\xFF\xFF\xFF\xFF");
    EXPECT_EQ(get(key, "odd"), "x");
    EXPECT_EQ(type, 0xFFFFFFFFu);
}

TEST_F(RegistryFunctions, FoldCaseBySimpleFoldingAndKeepTheSpelling) {
    const auto key = create(HKEY_CURRENT_USER, "Stra\xC3\x9F"
                                               "e");
    set(key, "\xC3\x84", "umlaut");
    EXPECT_EQ(get(key, "\xC3\xA4"), "umlaut\0"s);
    set(key, "\xC3\xA4", "second");
    EXPECT_EQ(values(key), std::vector<std::string>{"\xC3\x84"});
    EXPECT_NE(open(HKEY_CURRENT_USER, "STRA\xE1\xBA\x9E"
                                      "E"),
              0u);                                     // capital sharp s
    EXPECT_EQ(open(HKEY_CURRENT_USER, "STRASSE"), 0u); // full folding would find it
    set(key, "I", "plain");
    EXPECT_EQ(get(key, "\xC4\xB1"), "status 2"); // dotless i, folded only by Turkic rules
}

TEST_F(RegistryFunctions, EnumerateKeysByNameAndValuesInOrder) {
    const auto key = create(HKEY_CURRENT_USER, "A");
    for (const auto* name : {"b", "C", "a"}) create(key, name), set(key, name, "x");
    EXPECT_EQ(subkeys(key), (std::vector<std::string>{"a", "b", "C"}));
    EXPECT_EQ(status, 259);
    EXPECT_EQ(values(key), (std::vector<std::string>{"b", "C", "a"}));
    EXPECT_EQ(status, 259);
}

TEST_F(RegistryFunctions, AnEnumerationSeesLaterWrites) {
    const auto key = create(HKEY_CURRENT_USER, "A");
    set(key, "one", "1"), set(key, "two", "2");
    EXPECT_EQ(values(key).size(), 2u);
    EXPECT_EQ(store.RegDeleteValue(key, "one"), 0);
    std::string name, data;
    EXPECT_EQ(store.RegEnumValue(key, 1, name, type, data), 259);
}

TEST_F(RegistryFunctions, QueryInfoReturnsCountsAndLengths) {
    const auto key = create(HKEY_CURRENT_USER, "A");
    create(key, "long name"), create(key, "b");
    set(key, "name", "12345");
    RegistryKeyInfo info;
    ASSERT_EQ(store.RegQueryInfoKey(key, info), 0);
    EXPECT_EQ(info.subKeys, 2u);
    EXPECT_EQ(info.longestSubKeyName, 9u);
    EXPECT_EQ(info.values, 1u);
    EXPECT_EQ(info.longestValueName, 4u);
    EXPECT_EQ(info.longestValueData, 6u);
}

TEST_F(RegistryFunctions, HandlesHaveAccessRights) {
    set(create(HKEY_CURRENT_USER, "A"), "v", "x");
    std::string name, data;
    const auto writer = open(HKEY_CURRENT_USER, "A", KEY_SET_VALUE);
    EXPECT_EQ(get(writer, "v"), "status 5");
    EXPECT_EQ(store.RegEnumKeyEx(writer, 0, name), 5);
    EXPECT_EQ(store.RegEnumValue(writer, 0, name, type, data), 5);
    const auto reader = open(HKEY_CURRENT_USER, "A", KEY_QUERY_VALUE);
    EXPECT_EQ(get(reader, "v"), "x\0"s);
    EXPECT_EQ(store.RegSetValueEx(reader, "v", REG_SZ, ""), 5);
    EXPECT_EQ(store.RegDeleteValue(reader, "v"), 5);
}

TEST_F(RegistryFunctions, InvalidHandlesAndNamesHaveTheirStatus) {
    const auto key = create(HKEY_CURRENT_USER, "A");
    EXPECT_EQ(store.RegCloseKey(key), 0);
    EXPECT_EQ(store.RegCloseKey(key), 6);
    EXPECT_EQ(get(key, "v"), "status 6");
    EXPECT_EQ(get(0, "v"), "status 6");
    EXPECT_EQ(store.RegCloseKey(HKEY_CURRENT_USER), 0);
    EXPECT_EQ(open(HKEY_CURRENT_USER, "\\A"), 0u);
    EXPECT_EQ(status, 161);
    EXPECT_EQ(open(HKEY_CURRENT_USER, std::string(256, 'k')), 0u);
    EXPECT_EQ(status, 87);
    EXPECT_NE(open(HKEY_CURRENT_USER, "A\\"), 0u);
    const auto again = create(HKEY_CURRENT_USER, "A");
    EXPECT_EQ(store.RegSetValueEx(again, "two\nlines", REG_SZ, ""), 87);
    EXPECT_EQ(store.RegSetValueEx(again, std::string(16384, 'v'), REG_SZ, ""), 87);
    EXPECT_EQ(store.RegSetValueEx(again, "v", REG_SZ, "\xE4\0"s), 87);
}

TEST_F(RegistryFunctions, DeletingAKeyDeletesItsSubtreeAndInvalidatesItsHandles) {
    const auto inner = create(HKEY_CURRENT_USER, "A\\B\\C");
    set(inner, "v", "x");
    EXPECT_EQ(store.RegDeleteKey(HKEY_CURRENT_USER, "a\\b"), 0);
    EXPECT_EQ(store.RegDeleteKey(HKEY_CURRENT_USER, "a\\b"), 2);
    EXPECT_EQ(get(inner, "v"), "status 1018");
    EXPECT_TRUE(subkeys(open(HKEY_CURRENT_USER, "A")).empty());
    EXPECT_EQ(get(create(HKEY_CURRENT_USER, "A\\B\\C"), "v"), "status 2");
    EXPECT_EQ(store.RegDeleteKey(HKEY_CURRENT_USER, ""), 5);
    EXPECT_EQ(store.RegDeleteValue(HKEY_CURRENT_USER, "none"), 2);
}

TEST_F(RegistryFunctions, ClassesRootIsTheMachinesClasses) {
    std::string name;
    EXPECT_NE(open(HKEY_CLASSES_ROOT, ""), 0u);
    EXPECT_EQ(store.RegEnumKeyEx(HKEY_CLASSES_ROOT, 0, name), 259);
    set(create(HKEY_CLASSES_ROOT, "CLSID\\{1}"), "", "a class");
    EXPECT_EQ(get(open(HKEY_LOCAL_MACHINE, "Software\\Classes\\clsid\\{1}"), ""), "a class\0"s);
    EXPECT_TRUE(std::filesystem::exists(folder / "machine/machine.sqlite"));
    EXPECT_FALSE(std::filesystem::exists(folder / "config"));
}

TEST_F(RegistryFunctions, AReadOnlyMachineStoreIsReadable) {
    set(create(HKEY_LOCAL_MACHINE, kPrefs), "StartTutorial", "True");
    std::filesystem::permissions(folder / "machine/machine.sqlite", std::filesystem::perms(0444));
    std::filesystem::permissions(folder / "machine", std::filesystem::perms(0555));
    OtherProcess other{places};
    std::uint32_t key = 0, disposition = 0, length = 0;
    std::string data(100, '?');
    ASSERT_EQ(other.RegOpenKeyEx(HKEY_LOCAL_MACHINE, kPrefs, KEY_QUERY_VALUE, key), 0);
    EXPECT_EQ(other.RegQueryValueEx(key, "StartTutorial", type, data, length), 0);
    EXPECT_EQ(data.substr(0, length), "True\0"s);
    EXPECT_EQ(other.RegOpenKeyEx(HKEY_LOCAL_MACHINE, kPrefs, KEY_SET_VALUE, key), 5);
    EXPECT_EQ(other.RegCreateKeyEx(HKEY_LOCAL_MACHINE, kPrefs, KEY_ALL_ACCESS, key, disposition), 5);
    EXPECT_EQ(other.RegCreateKeyEx(HKEY_LOCAL_MACHINE, "New", KEY_READ, key, disposition), 5);
    EXPECT_EQ(other.RegCreateKeyEx(HKEY_CURRENT_USER, "New", KEY_READ, key, disposition), 0);
    std::filesystem::permissions(folder / "machine", std::filesystem::perms(0755));
}

TEST_F(RegistryFunctions, AUserWithoutRightsOnTheMachineStoreReadsIt) {
    set(create(HKEY_LOCAL_MACHINE, "A"), "v", "x");
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(folder / "machine", std::filesystem::perms(0755));
    std::filesystem::permissions(folder / "machine/machine.sqlite", std::filesystem::perms(0644));
    store.~RegistryStore(); // closes the writer and removes its lock files
    new (&store) host::RegistryStore(places);
    if (::getuid() != 0) GTEST_SKIP() << "needs root to become another user";
    const auto child = ::fork();
    if (child == 0) {
        if (::setgid(65534) != 0 || ::setuid(65534) != 0) ::_exit(9);
        OtherProcess other{places};
        std::uint32_t key = 0, length = 0;
        std::string data(2, '?');
        if (other.RegOpenKeyEx(HKEY_LOCAL_MACHINE, "A", KEY_READ, key) != 0) ::_exit(1);
        if (other.RegQueryValueEx(key, "v", type, data, length) != 0 || data != "x\0"s) ::_exit(2);
        ::_exit(other.RegOpenKeyEx(HKEY_LOCAL_MACHINE, "A", KEY_SET_VALUE, key));
    }
    int ended = 0;
    ASSERT_EQ(::waitpid(child, &ended, 0), child);
    EXPECT_EQ(WEXITSTATUS(ended), 5);
}

TEST_F(RegistryFunctions, AnUnwritableMachineStoreDeniesAccess) {
    folder.write("file", "");
    OtherProcess other{{folder / "config", folder / "file/machine", {}}};
    std::uint32_t key = 0, disposition = 0;
    EXPECT_EQ(other.RegOpenKeyEx(HKEY_LOCAL_MACHINE, "A", KEY_READ, key), 2);
    EXPECT_EQ(other.RegCreateKeyEx(HKEY_LOCAL_MACHINE, "A", KEY_READ, key, disposition), 5);
    EXPECT_EQ(other.RegSetValueEx(HKEY_LOCAL_MACHINE, "v", REG_SZ, ""), 5);
}

TEST_F(RegistryFunctions, AForeignOrDamagedFileHasItsStatus) {
    folder.write("config/fernwick/user.sqlite", "this is not a registry store at all, but some text of a user\n");
    std::uint32_t key = 0, disposition = 0;
    EXPECT_EQ(store.RegOpenKeyEx(HKEY_CURRENT_USER, "A", KEY_READ, key), 1017);
    EXPECT_EQ(store.RegCreateKeyEx(HKEY_CURRENT_USER, "A", KEY_READ, key, disposition), 1017);
    folder.write("config/fernwick/user.sqlite", "");
    EXPECT_EQ(store.RegOpenKeyEx(HKEY_CURRENT_USER, "A", KEY_READ, key), 1017);
    EXPECT_EQ(folder.read("config/fernwick/user.sqlite"), "");
}

TEST_F(RegistryFunctions, ATruncatedDatabaseHasItsStatus) {
    {
        OtherProcess writer{places};
        std::uint32_t key = 0, disposition = 0;
        ASSERT_EQ(writer.RegCreateKeyEx(HKEY_CURRENT_USER, "A", KEY_ALL_ACCESS, key, disposition), 0);
    }
    auto bytes = folder.read("config/fernwick/user.sqlite");
    ASSERT_GT(bytes.size(), 8192u);
    std::fill(bytes.begin() + 4096, bytes.end(), '\xAA');
    folder.write("config/fernwick/user.sqlite", bytes);
    open(HKEY_CURRENT_USER, "A");
    EXPECT_EQ(status, 1015);
}

TEST_F(RegistryFunctions, ManyProcessesWriteAtOnce) {
    constexpr int kProcesses = 6, kWrites = 40;
    std::vector<pid_t> children;
    for (int p = 0; p < kProcesses; ++p) {
        children.push_back(::fork());
        if (children.back() != 0) continue;
        OtherProcess mine{places};
        std::uint32_t key = 0, disposition = 0;
        bool good = mine.RegCreateKeyEx(HKEY_CURRENT_USER, kPrefs, KEY_ALL_ACCESS, key, disposition) == 0;
        for (int i = 0; i < kWrites; ++i)
            good = good && mine.RegSetValueEx(key, std::to_string(p) + "." + std::to_string(i), REG_SZ, "x") == 0;
        ::_exit(good ? 0 : 1);
    }
    for (const auto child : children) {
        int ended = 1;
        ::waitpid(child, &ended, 0);
        EXPECT_EQ(ended, 0);
    }
    EXPECT_EQ(values(open(HKEY_CURRENT_USER, kPrefs)).size(), static_cast<std::size_t>(kProcesses * kWrites));
    for (const auto& left : std::filesystem::directory_iterator(places.user))
        EXPECT_TRUE(left.path().filename().string().starts_with("user.sqlite")) << left.path();
}

TEST_F(RegistryFunctions, TheUsersFolderIsPrivateAndTheStoreHasTheRightsOfItsFolder) {
    create(HKEY_CURRENT_USER, "A");
    struct stat state {};
    ASSERT_EQ(::stat((folder / "config/fernwick").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777u, 0700u);
    std::filesystem::create_directory(folder / "machine");
    std::filesystem::permissions(folder / "machine", std::filesystem::perms(0775));
    create(HKEY_LOCAL_MACHINE, "A");
    ASSERT_EQ(::stat((folder / "machine/machine.sqlite").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777u, 0664u);
}

TEST(RegStatus, IsDescribed) {
    using enum host::RegStatus;
    const std::pair<host::RegStatus, const char*> texts[] = {
        {Success, "success"},
        {NotFound, "there is no such key or value"},
        {AccessDenied, "access is denied"},
        {InvalidHandle, "the key is not open"},
        {OutOfMemory, "the data are too large"},
        {InvalidParameter, "a name or its length is not allowed"},
        {DiskFull, "the disk is full"},
        {BadPathname, "a key's path does not begin with a backslash"},
        {Busy, "another process keeps the store locked"},
        {MoreData, "there is more data"},
        {NoMoreItems, "there are no more items"},
        {Corrupt, "the store's file is damaged"},
        {IoFailed, "the store's file could not be read or written"},
        {NotRegistryFile, "the store's file is not a registry store, or one of a later version"},
        {KeyDeleted, "the key has been deleted"},
        {host::RegStatus(4711), "status 4711"}};
    for (const auto& [status, text] : texts) EXPECT_EQ(host::describe(status), text);
}
