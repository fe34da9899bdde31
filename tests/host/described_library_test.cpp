#include "Basic/runtime_error.h"
#include "Components/Language/foreign.h"
#include "Host/model/references/described_library.h"
#include "tests/support/temp_folder.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace {

const std::string kInstallation = FERNWICK_SOURCE_DIR "/installation/";
const std::string kLibraryHead = "name = 'Lib'\nguid = '{1}'\nversion = '1.0'\n";

const language::Group* groupOf(const language::Library& library, const std::string& name) {
    const auto found =
        std::find_if(library.groups.begin(), library.groups.end(), [&](const auto& g) { return g.name == name; });
    return found == library.groups.end() ? nullptr : &*found;
}

const language::Member* memberOf(const language::Library& library, const std::string& group, const std::string& name) {
    const auto* in = groupOf(library, group);
    if (!in) return nullptr;
    const auto found =
        std::find_if(in->members.begin(), in->members.end(), [&](const auto& m) { return m.name == name; });
    return found == in->members.end() ? nullptr : &*found;
}

language::Library shipped(const std::string& file) {
    return host::libraryOf(host::readTypeDescription(kInstallation + file));
}

class DescribedLibrary : public testing::Test {
protected:
    language::Library read(const std::string& toml) {
        folder.write("lib.toml", kLibraryHead + toml);
        return host::libraryOf(host::readTypeDescription(folder / "lib.toml"));
    }
    std::string errorOf(const std::string& toml) {
        return basic::attempt([&] { (void)read(toml); }).Description;
    }
    TempFolder folder;
};

} // namespace

TEST_F(DescribedLibrary, HasTheModulesAndFunctions) {
    const auto library = read("[[modules]]\nname = 'M'\nfunctions = [{ name = 'F', returns = 'Date', help = 'Now', "
                              "parameters = [{ name = 'n', type = 'Long', byref = true }, { name = 'v', type = "
                              "'Variant', optional = true }] }, { name = 'S' }]\n");
    EXPECT_EQ(library.name, "Lib");
    const auto* f = memberOf(library, "M", "F");
    ASSERT_TRUE(f);
    EXPECT_EQ(f->kind, language::MemberKind::Function);
    EXPECT_EQ(f->type, "Date");
    EXPECT_EQ(f->help, "Now");
    EXPECT_TRUE(f->parameters.at(0).byRef);
    EXPECT_TRUE(f->parameters.at(1).optional);
    EXPECT_EQ(memberOf(library, "M", "S")->kind, language::MemberKind::Sub);
}

TEST_F(DescribedLibrary, HasEnumerations) {
    const auto library = read("[[enums]]\nname = 'E'\nvalues = [{ name = 'one', value = -1 }]\n");
    EXPECT_EQ(groupOf(library, "E")->kind, language::GroupKind::Enum);
    EXPECT_EQ(memberOf(library, "E", "one")->value, "-1");
}

TEST_F(DescribedLibrary, HasTheDefaultMemberThatAClassNames) {
    folder.write(
        "c/B.toml",
        "name = 'B'\nprogid = 'Lib.B'\nclsid = '{2}'\ndefault_member = 'Text'\nproperties = [{ name = 'Text', "
        "type = 'String' }, { name = 'Count', type = 'Variant', access = 'read' }]\nevents = [{ name = 'Click' }]\n");
    folder.write("c/C.toml",
                 "name = 'C'\nprogid = 'Lib.C'\nclsid = '{3}'\nproperties = [{ name = 'Text', type = 'String' }]\n");
    const auto library = read("classes = 'c'\n");
    EXPECT_EQ(library.name, "LibCtl");
    EXPECT_TRUE(memberOf(library, "B", "Text")->isDefault);
    EXPECT_FALSE(memberOf(library, "B", "Count")->isDefault);
    EXPECT_FALSE(memberOf(library, "B", "Count")->writable);
    EXPECT_EQ(memberOf(library, "B", "Count")->type, "");
    EXPECT_EQ(memberOf(library, "B", "Click")->kind, language::MemberKind::Event);
    EXPECT_FALSE(memberOf(library, "C", "Text")->isDefault);
}

TEST_F(DescribedLibrary, RefusesADefaultMemberThatTheClassLacks) {
    folder.write("c/B.toml", "name = 'B'\nprogid = 'Lib.B'\nclsid = '{2}'\ndefault_member = 'Text'\n");
    EXPECT_EQ(errorOf("classes = 'c'\n"), folder / "c/B.toml" + ":1: there is no property or method \"Text\"");
}

TEST_F(DescribedLibrary, HasAFormWithTheMembersThatDevicesHave) {
    folder.write("Form.toml",
                 "name = 'F'\nextends = 'VB.Form'\nproperties = [{ name = 'Orientation', type = 'Integer' }]\n");
    const auto library = read("form = 'Form.toml'\n");
    EXPECT_TRUE(memberOf(library, "F", "Caption"));
    EXPECT_TRUE(memberOf(library, "F", "Load"));
    EXPECT_TRUE(memberOf(library, "F", "Orientation"));
    EXPECT_FALSE(memberOf(library, "F", "hWnd"));
    EXPECT_FALSE(memberOf(library, "F", "Paint"));
}

TEST_F(DescribedLibrary, RefusesAFormThatExtendsAnUnknownClass) {
    folder.write("Form.toml", "name = 'F'\nextends = 'VB.Window'\n");
    EXPECT_EQ(errorOf("form = 'Form.toml'\n"), folder / "Form.toml" + ":1: there is no class \"VB.Window\"");
}

TEST(ShippedDescriptions, NameTypesThatExist) {
    for (const auto* file : {"tavlets/Tavlets.toml", "libraries/QLDevice.toml"}) {
        const auto library = shipped(file);
        std::set<std::string> types{"", "Boolean", "Integer", "Long", "Single", "Date", "String", "Object"};
        for (const auto* known : language::builtInLibraries())
            for (const auto& group : known->groups) types.insert(group.name);
        for (const auto& group : library.groups) types.insert(group.name);
        for (const auto& group : library.groups)
            for (const auto& member : group.members)
                EXPECT_TRUE(types.contains(member.type)) << group.name << "." << member.name;
    }
}

TEST(ShippedDescriptions, HaveTheDefaultMembersOfTheLanguagesControls) {
    const auto tavlets = shipped("tavlets/Tavlets.toml");
    const std::pair<std::string, std::string> expected[] = {
        {"QLLabel", "Caption"},   {"QLTextBox", "Text"},      {"QLListBox", "Text"},     {"QLComboBox", "Text"},
        {"QLCheckBox", "Value"},  {"QLRadioButton", "Value"}, {"QLHScrollBar", "Value"}, {"QLVScrollBar", "Value"},
        {"QLPicture", "Picture"}, {"QLTimer", "Enabled"},     {"QLFrame", "Caption"},    {"QLGrid", "Text"},
        {"QLShape", "Shape"},     {"QLLine", "Visible"},      {"QLDatabase", "Field"}};
    for (const auto& [control, member] : expected) {
        ASSERT_TRUE(memberOf(tavlets, control, member)) << control;
        EXPECT_TRUE(memberOf(tavlets, control, member)->isDefault) << control;
    }
    // The button of the language has Value, which devices lack; its Caption would change what a condition means.
    for (const auto& member : groupOf(tavlets, "QLButton")->members) EXPECT_FALSE(member.isDefault) << member.name;
    EXPECT_TRUE(memberOf(tavlets, "QLForm", "Show"));
}

namespace {

/// The words of a text that begin with "QL".
std::vector<std::string> deviceNamesIn(const std::string& text) {
    std::vector<std::string> names;
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    for (auto at = text.find("QL"); at != text.npos; at = text.find("QL", at + 1)) {
        const auto end = std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), isLetter);
        names.emplace_back(text.begin() + static_cast<std::ptrdiff_t>(at), end);
    }
    return names;
}

} // namespace

TEST(Substitutes, AreTavletsAndLibrariesOfTheInstallation) {
    const auto tavlets = shipped("tavlets/Tavlets.toml");
    const auto check = [&](const std::string& text) {
        for (const auto& name : deviceNamesIn(text)) EXPECT_TRUE(name == "QLDevice" || groupOf(tavlets, name)) << text;
    };
    const auto checkLibrary = [&](const language::Library& library) {
        check(library.instead);
        for (const auto& group : library.groups) {
            check(group.instead);
            for (const auto& member : group.members) check(member.instead);
        }
    };
    for (const auto* library : language::builtInLibraries()) checkLibrary(*library);
    for (const auto& library : language::foreignLibraries()) checkLibrary(library);
}
