#include "Basic/runtime_error.h"
#include "Host/registry/registry_store.h"
#include "Host/system/classes.h"
#include "Host/system/type_description.h"
#include "tests/host_system/temp_folder.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace {

const std::string kClass = "{ACF541CF-87F2-40A2-BEB1-628C6676A32D}";

class ClassLookup : public testing::Test {
protected:
    void setDefault(const std::string& subKey, const std::string& text) {
        std::uint32_t key = 0, disposition = 0;
        registry.RegCreateKeyEx(fernwick::HKEY_CLASSES_ROOT, subKey, fernwick::KEY_ALL_ACCESS, key, disposition);
        ASSERT_EQ(registry.RegSetValueEx(key, "", fernwick::REG_SZ, text + '\0'), 0);
    }
    int errorReading(const std::string& toml) {
        folder.write("lib.toml", toml);
        const auto err = basic::attempt([&] { host::readTypeDescription((folder / "lib.toml").string()); });
        description = err.Description;
        return err.Number;
    }

    TempFolder folder;
    host::RegistryStore registry{{folder / "user", folder / "machine", {}}};
    host::Classes classes{registry};
    std::string description;
};

struct Made : fernwick::Object {};

const std::string kHead = "name = 'Lib'\nguid = '{1}'\nversion = '2.13'\nhelp = 'A library'\n";

} // namespace

TEST_F(ClassLookup, FindsProgIdsAndClassIdsThroughTheRegistry) {
    setDefault("CLSID\\" + kClass + "\\ProgID", "Tavlets.QLLabel");
    setDefault("Tavlets.QLLabel\\CLSID", "{acf541cf-87f2-40a2-beb1-628c6676a32d}");
    EXPECT_EQ(classes.ProgIDFromCLSID(kClass), "Tavlets.QLLabel");
    EXPECT_EQ(classes.ProgIDFromCLSID("{acf541cf-87f2-40a2-beb1-628c6676a32d}"), "Tavlets.QLLabel");
    EXPECT_EQ(classes.CLSIDFromProgID("tavlets.qllabel"), kClass);
    EXPECT_EQ(classes.ProgIDFromCLSID("{00000000-87F2-40A2-BEB1-628C6676A32D}"), "");
    EXPECT_EQ(classes.ProgIDFromCLSID("nonsense"), "");
    EXPECT_EQ(classes.CLSIDFromProgID("No.Class"), "");
}

TEST_F(ClassLookup, AClassIdNeedsBraces) {
    std::string clsid;
    EXPECT_TRUE(classes.CLSIDFromString("{acf541cf-87f2-40a2-beb1-628c6676a32d}", clsid));
    EXPECT_EQ(clsid, kClass);
    for (const auto* wrong : {"", "ACF541CF-87F2-40A2-BEB1-628C6676A32D", "{ACF541CF-87F2-40A2-BEB1-628C6676A32D",
                              "{ACF541CF-87F2-40A2-BEB1-628C6676A32G}", "{ACF541CF087F2-40A2-BEB1-628C6676A32D}",
                              " {ACF541CF-87F2-40A2-BEB1-628C6676A32D}"})
        EXPECT_FALSE(classes.CLSIDFromString(wrong, clsid)) << wrong;
}

TEST_F(ClassLookup, CreatesClassesWhileTheyAreRegistered) {
    const auto make = [] { return basic::Ref<fernwick::Object>(basic::make<Made>()); };
    EXPECT_EQ(basic::attempt([&] { classes.CreateObject("A.B"); }).Number, 429);
    auto first = classes.RegisterClass("A.B", make);
    basic::Ref<fernwick::Object> only = basic::make<Made>();
    auto second = classes.RegisterClass("a.b", [&] { return only; });
    EXPECT_EQ(classes.CreateObject("A.b"), only);
    second.reset();
    EXPECT_NE(classes.CreateObject("A.B"), only);
    first.reset();
    EXPECT_EQ(basic::attempt([&] { classes.CreateObject("A.B"); }).Number, 429);
    const auto nothing = classes.RegisterClass("A.B", [] { return nullptr; });
    EXPECT_EQ(basic::attempt([&] { classes.CreateObject("A.B"); }).Number, 429);
}

TEST_F(ClassLookup, TypeInformationIsNextToTheRegisteredLibrary) {
    folder.write("Tavlets.TOML", kHead);
    const auto registered = (folder / "tavlets.dll").string();
    const auto info = classes.TypeLibInfoFromFile(registered);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->Name, "Lib");
    EXPECT_EQ(info->Guid, "{1}");
    EXPECT_EQ(info->MajorVersion, 2);
    EXPECT_EQ(info->MinorVersion, 13);
    EXPECT_EQ(info->HelpString, "A library");
    EXPECT_EQ(info->ContainingFile, registered);
}

TEST_F(ClassLookup, ALibraryIsReadAgainOnlyWhenItsFileChanged) {
    const auto file = folder.write("Lib.toml", kHead);
    const auto registered = (folder / "Lib.dll").string();
    const auto nameNow = [&] { return classes.TypeLibInfoFromFile(registered)->Name; };
    const auto time = std::filesystem::last_write_time(file);
    EXPECT_EQ(nameNow(), "Lib");
    auto changed = kHead;
    folder.write("Lib.toml", changed.replace(changed.find("Lib"), 3, "Bil"));
    std::filesystem::last_write_time(file, time);
    EXPECT_EQ(nameNow(), "Lib");
    std::filesystem::last_write_time(file, time + std::chrono::seconds(1));
    EXPECT_EQ(nameNow(), "Bil");
}

TEST_F(ClassLookup, AnUnreadableLibraryIsNothing) {
    folder.write("broken.toml", "name = ");
    EXPECT_FALSE(classes.TypeLibInfoFromFile((folder / "broken.dll").string()));
    EXPECT_FALSE(classes.TypeLibInfoFromFile((folder / "absent.dll").string()));
    EXPECT_FALSE(classes.TypeLibInfoFromFile(""));
}

TEST_F(ClassLookup, ReadsClassesWithTheMembersOfTheirGroups) {
    folder.write("parts/B.toml",
                 "name = 'B'\nprogid = 'Lib.B'\nclsid = '{2}'\ngroups = ['g']\n"
                 "properties = [{ name = 'Own', type = 'Long', default = 5, design = false },"
                 "{ name = 'Text', type = 'String', default = 'x', access = 'read' }]\n"
                 "methods = [{ name = 'Go', parameters = [{ name = 'n', type = 'Long', byref = true }], "
                 "returns = 'Boolean' }]\nevents = [{ name = 'Click' }]\n");
    folder.write("parts/readme.md", "not a class");
    folder.write("lib.toml", kHead + "classes = 'parts'\n[[groups]]\nname = 'g'\n"
                                     "properties = [{ name = 'Left', type = 'Single', default = 1.5 }]\n"
                                     "[[modules]]\nname = 'M'\nfunctions = [{ name = 'F', returns = 'Date' }]\n");
    const auto lib = host::readTypeDescription((folder / "lib.toml").string());
    ASSERT_EQ(lib.classes.size(), 1u);
    const auto& b = lib.classes[0];
    EXPECT_EQ(b.progId, "Lib.B");
    ASSERT_EQ(b.properties.size(), 3u);
    EXPECT_EQ(b.properties[0].name, "Left");
    EXPECT_EQ(b.properties[0].defaultValue, fernwick::Variant(1.5));
    EXPECT_EQ(b.properties[1].defaultValue, fernwick::Variant(std::int32_t{5}));
    EXPECT_FALSE(b.properties[1].design);
    EXPECT_TRUE(b.properties[2].readOnly);
    ASSERT_EQ(b.methods.size(), 1u);
    EXPECT_EQ(b.methods[0].type, "Boolean");
    EXPECT_TRUE(b.methods[0].parameters.at(0).byRef);
    EXPECT_EQ(b.events.at(0).name, "Click");
    EXPECT_EQ(lib.modules.at(0).methods.at(0).type, "Date");
}

TEST_F(ClassLookup, InvalidDescriptionsAreReportedWithTheirLine) {
    const auto file = (folder / "lib.toml").string();
    EXPECT_EQ(errorReading("name = 'Lib'\nguid = 5\n"), 321);
    EXPECT_EQ(description, file + ":2: \"guid\" must be a text");
    EXPECT_EQ(errorReading("guid = '{1}'\n"), 321);
    EXPECT_EQ(description, file + ":1: \"name\" is missing");
    for (const auto* version : {"2", "2.", "a.b", "2.1x", "2.99999999999"}) {
        EXPECT_EQ(errorReading("name = 'L'\nguid = 'g'\nversion = '" + std::string(version) + "'\n"), 321) << version;
        EXPECT_EQ(description, file + ":1: \"version\" must be two numbers separated by a point");
    }
    EXPECT_EQ(errorReading("name = 'Lib'\nname = 'twice'\n"), 321);
    EXPECT_EQ(description.rfind(file + ":2: ", 0), 0u) << description;
    EXPECT_EQ(errorReading(kHead + "modules = 3\n"), 321);
    EXPECT_EQ(description, file + ":5: \"modules\" must be a list");
    EXPECT_EQ(errorReading(kHead + "modules = [3]\n"), 321);
    EXPECT_EQ(description, file + ":5: \"modules\" must be a list of tables");
    EXPECT_EQ(errorReading(kHead + "classes = 'absent'\n"), 76);
    folder.write("c/x.toml", "name = 'X'\nprogid = 'L.X'\nclsid = '{2}'\ngroups = ['none']\n");
    EXPECT_EQ(errorReading(kHead + "classes = 'c'\n"), 321);
    EXPECT_EQ(description, (folder / "c/x.toml").string() + ":1: there is no group \"none\"");
    EXPECT_EQ(basic::attempt([&] { host::readTypeDescription((folder / "none.toml").string()); }).Number, 53);
}

TEST_F(ClassLookup, TheShippedLibrariesAreRegisteredAndDescribed) {
    host::RegistryStore shipped{{folder / "user", folder / "machine", FERNWICK_SOURCE_DIR "/installation"}};
    const host::Classes known(shipped);
    const auto tavlets = host::readTypeDescription(FERNWICK_SOURCE_DIR "/installation/tavlets/Tavlets.toml");
    ASSERT_FALSE(tavlets.classes.empty());
    for (const auto& one : tavlets.classes) {
        EXPECT_EQ(known.ProgIDFromCLSID(one.clsid), one.progId);
        EXPECT_EQ(known.CLSIDFromProgID(one.progId), one.clsid);
        EXPECT_FALSE(one.properties.empty()) << one.name;
    }
    const auto info = known.TypeLibInfoFromFile(FERNWICK_SOURCE_DIR "/installation/tavlets/Tavlets.dll");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->Name, tavlets.name);
}
