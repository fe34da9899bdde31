#include "Basic/runtime_error.h"
#include "Host/registry/reg_exchange.h"
#include "tests/host_system/temp_folder.h"
#include <gtest/gtest.h>
#include <map>

using namespace fernwick;
using namespace std::string_literals;
using Kind = host::RegInstruction::Kind;

namespace {

class InstalledRegistry : public testing::Test {
protected:
    void install(const std::string& name, const std::string& body) {
        folder.write("inst/registry/" + name, "Windows Registry Editor Version 5.00\r\n\r\n" + body);
    }
    std::string get(std::uint32_t root, const std::string& subKey, const std::string& name) {
        std::uint32_t key = 0, type = 0, length = 0;
        std::string data(1000, '?');
        auto status = store.RegOpenKeyEx(root, subKey, KEY_QUERY_VALUE, key);
        if (status == 0) status = store.RegQueryValueEx(key, name, type, data, length);
        return status == 0 ? data.substr(0, length - 1) : "status " + std::to_string(status);
    }
    std::int32_t set(std::uint32_t root, const std::string& subKey, const std::string& name, const std::string& text) {
        std::uint32_t key = 0, disposition = 0;
        const auto status = store.RegCreateKeyEx(root, subKey, KEY_ALL_ACCESS, key, disposition);
        return status == 0 ? store.RegSetValueEx(key, name, REG_SZ, text + '\0') : status;
    }
    void importText(const std::string& body) {
        host::importRegistry(store, host::readRegText("Windows Registry Editor Version 5.00\n" + body, "in.reg"),
                             "in.reg");
    }

    TempFolder folder;
    host::RegistryStore store{{folder / "user", folder / "machine", folder / "inst"}};
};

struct GivenEnvironment : Environment {
    std::map<std::string, std::string> set;
    std::string GetEnvironmentVariable(const std::string& name) const override {
        const auto at = set.find(name);
        return at == set.end() ? "" : at->second;
    }
    void SetEnvironmentVariable(const std::string& name, const std::string& value) override { set[name] = value; }
};

} // namespace

TEST_F(InstalledRegistry, HasTheInstallationsValuesWithoutAStore) {
    install("a.reg", "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Quinloft]\r\n\"RootDir\"=\"%RootDir%\"\r\n"
                     "\"Two\"=\"%RootDir%/a;%RootDir%/b\"\r\n");
    install("b.reg", "[HKEY_CLASSES_ROOT\\A.B\\CLSID]\r\n@=\"{1}\"\r\n");
    const auto root = (folder / "inst").string();
    EXPECT_EQ(get(HKEY_LOCAL_MACHINE, "Software\\quinloft", "rootdir"), root);
    EXPECT_EQ(get(HKEY_LOCAL_MACHINE, "Software\\quinloft", "Two"), root + "/a;" + root + "/b");
    EXPECT_EQ(get(HKEY_LOCAL_MACHINE, "SOFTWARE\\Classes\\a.b\\clsid", ""), "{1}");
    EXPECT_TRUE(store.installationProblems().empty());
    EXPECT_FALSE(std::filesystem::exists(folder / "machine"));
}

TEST_F(InstalledRegistry, TheMachinesStoreHidesTheLayerAndMergesWithIt) {
    install("a.reg", "[HKEY_LOCAL_MACHINE\\K\\b]\n[HKEY_LOCAL_MACHINE\\K]\n\"one\"=\"1\"\n\"two\"=\"2\"\n");
    ASSERT_EQ(set(HKEY_LOCAL_MACHINE, "K", "TWO", "mine"), 0);
    ASSERT_EQ(set(HKEY_LOCAL_MACHINE, "K", "three", "3"), 0);
    ASSERT_EQ(set(HKEY_LOCAL_MACHINE, "K\\A", "", ""), 0);
    ASSERT_EQ(set(HKEY_LOCAL_MACHINE, "K\\B", "", ""), 0);
    EXPECT_EQ(get(HKEY_LOCAL_MACHINE, "K", "two"), "mine");
    std::string shown;
    for (const auto& one : host::exportRegistry(store, "HKLM\\K")) shown += one.key + "/" + one.name + "\n";
    EXPECT_EQ(shown, "HKEY_LOCAL_MACHINE\\K/\nHKEY_LOCAL_MACHINE\\K/one\nHKEY_LOCAL_MACHINE\\K/TWO\n"
                     "HKEY_LOCAL_MACHINE\\K/three\nHKEY_LOCAL_MACHINE\\K\\A/\nHKEY_LOCAL_MACHINE\\K\\A/\n"
                     "HKEY_LOCAL_MACHINE\\K\\B/\nHKEY_LOCAL_MACHINE\\K\\B/\n");
}

TEST_F(InstalledRegistry, InstalledValuesCannotBeDeleted) {
    install("a.reg", "[HKEY_LOCAL_MACHINE\\K]\n\"one\"=\"1\"\n");
    ASSERT_EQ(set(HKEY_LOCAL_MACHINE, "K", "own", "x"), 0);
    ASSERT_EQ(set(HKEY_LOCAL_MACHINE, "K\\Sub", "own", "x"), 0);
    std::uint32_t key = 0;
    ASSERT_EQ(store.RegOpenKeyEx(HKEY_LOCAL_MACHINE, "K", KEY_ALL_ACCESS, key), 0);
    EXPECT_EQ(store.RegDeleteValue(key, "one"), 5);
    EXPECT_EQ(store.RegDeleteKey(HKEY_LOCAL_MACHINE, "K"), 5);
    EXPECT_EQ(get(HKEY_LOCAL_MACHINE, "K\\Sub", "own"), "x"); // all or nothing
    EXPECT_EQ(store.RegDeleteValue(key, "own"), 0);
    EXPECT_EQ(store.RegDeleteKey(HKEY_LOCAL_MACHINE, "K\\Sub"), 0);
}

TEST_F(InstalledRegistry, AnInvalidFileIsReportedAndTheOthersCount) {
    install("a.reg", "[HKEY_LOCAL_MACHINE\\K\nbroken");
    install("b.reg", "[HKEY_CURRENT_USER\\K]\n[HKEY_LOCAL_MACHINE\\K]\n\"one\"=\"1\"\n");
    EXPECT_EQ(get(HKEY_LOCAL_MACHINE, "K", "one"), "1");
    const auto path = (folder / "inst/registry/").string();
    EXPECT_EQ(store.installationProblems(), (std::vector<std::string>{path + "a.reg:3: \"]\" is missing after the key",
                                                                      path + "b.reg:3: access is denied"}));
}

TEST_F(InstalledRegistry, ReadsTheShippedInstallation) {
    host::RegistryStore shipped{{folder / "user", folder / "machine", FERNWICK_SOURCE_DIR "/installation"}};
    EXPECT_EQ(shipped.installationProblems(), std::vector<std::string>{});
    std::uint32_t key = 0;
    EXPECT_EQ(shipped.RegOpenKeyEx(HKEY_LOCAL_MACHINE, "Software\\Quinloft", KEY_QUERY_VALUE, key), 0);
}

TEST_F(InstalledRegistry, ImportsExportedFiles) {
    importText("[HKCU\\Software\\A]\n\"s\"=\"text\"\n\"d\"=dword:5\n[HKCU\\Software\\A\\B]\n@=hex:01\n");
    const auto out = host::exportRegistry(store, "hkcu\\Software\\A");
    const auto bytes = host::writeRegText(out, host::RegTextEncoding::Utf16);
    importText("[-HKEY_CURRENT_USER\\Software]\n");
    EXPECT_EQ(basic::attempt([&] { host::exportRegistry(store, "HKCU\\Software"); }).Number, 53);
    host::importRegistry(store, host::readRegText(bytes, "x.reg"), "x.reg");
    EXPECT_EQ(host::writeRegText(host::exportRegistry(store, "HKCU\\Software\\A"), host::RegTextEncoding::Utf16),
              bytes);
}

TEST_F(InstalledRegistry, AFailedImportChangesNothing) {
    auto err = basic::attempt([&] { importText("[HKCU\\A]\n\"good\"=\"1\"\n[HKEY_USERS\\A]\n"); });
    EXPECT_EQ(err.Number, 5);
    EXPECT_EQ(err.Description, "in.reg:4: HKEY_USERS\\A: there is no such root key");
    err = basic::attempt([&] { importText("[HKCU\\A]\n\"good\"=\"1\"\n\"a\tb\"=\"1\"\n"); });
    EXPECT_EQ(err.Number, 5);
    EXPECT_EQ(err.Description, "in.reg:4: HKCU\\A: a name or its length is not allowed");
    EXPECT_EQ(get(HKEY_CURRENT_USER, "A", "good"), "status 2");
}

TEST_F(InstalledRegistry, AnImportIntoAReadOnlyStoreIsDenied) {
    folder.write("machine", "a file where the folder should be");
    const auto err = basic::attempt([&] { importText("[HKLM\\A]\n"); });
    EXPECT_EQ(err.Number, 70);
    EXPECT_EQ(err.Description, "in.reg:2: HKLM\\A: access is denied");
    EXPECT_EQ(err.Source, "VBIDE");
}

TEST(RegistryPlaces, FollowTheEnvironment) {
    GivenEnvironment environment;
    environment.set = {{"HOME", "/home/u"}, {"FERNWICK_MACHINE_STORE", "/m"}};
    auto places = host::usualRegistryPlaces(environment, "/inst");
    EXPECT_EQ(places.user, "/home/u/.config/fernwick");
    EXPECT_EQ(places.machine, "/m");
    EXPECT_EQ(places.installation, "/inst");
    environment.set["XDG_CONFIG_HOME"] = "/x/config";
    EXPECT_EQ(host::usualRegistryPlaces(environment, "").user, "/x/config/fernwick");
    environment.set["XDG_CONFIG_HOME"] = "relative";
    EXPECT_EQ(host::usualRegistryPlaces(environment, "").user, "/home/u/.config/fernwick");
}
