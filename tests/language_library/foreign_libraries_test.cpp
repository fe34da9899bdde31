#include "Components/Language/foreign.h"
#include "tests/language_library/lookup.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace {

using language::findClass;
using language::findDeclared;
using language::foreignLibrary;

std::vector<std::string> controlsOf(const language::Library& library) {
    std::vector<std::string> names;
    for (const auto& group : library.groups)
        if (group.control) names.push_back(group.name);
    return names;
}

TEST(ForeignLibraries, AreKnownByGuidAndName) {
    const std::pair<const char*, const char*> expected[] = {{"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}", "MSComctlLib"},
                                                            {"{6B7E6392-850A-101B-AFC0-4210102A8DA7}", "ComctlLib"},
                                                            {"{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}", "MSComCtl2"},
                                                            {"{C932BA88-4374-101B-A56C-00AA003668DC}", "MSMask"},
                                                            {"{BDC217C8-ED16-11CD-956C-0000C04E4C0A}", "TabDlg"},
                                                            {"{5E9E78A0-531B-11CF-91F6-C2863C385E30}", "MSFlexGridLib"},
                                                            {"{248DD890-BB45-11CF-9ABC-0080C7E7B78D}", "MSWinsockLib"},
                                                            {"{00000201-0000-0010-8000-00AA006D2EA4}", "ADODB"},
                                                            {"{2A75196C-D9EB-4129-B803-931327F72D5C}", "ADODB"},
                                                            {"{420B2830-E718-11CF-893D-00A0C9054228}", "Scripting"}};
    for (const auto& [guid, name] : expected) {
        ASSERT_TRUE(foreignLibrary(guid)) << guid;
        EXPECT_EQ(foreignLibrary(guid)->name, name);
        EXPECT_EQ(foreignLibrary(name), foreignLibrary(guid));
    }
    EXPECT_EQ(foreignLibrary("adodb"), foreignLibrary("ADODB"));
    EXPECT_FALSE(foreignLibrary("{00000000-0000-0000-0000-000000000000}"));
    EXPECT_FALSE(foreignLibrary(""));
}

TEST(ForeignLibraries, HaveTheirControlsInTheOrderOfTheToolbox) {
    EXPECT_THAT(controlsOf(*foreignLibrary("MSComctlLib")),
                testing::ElementsAre("TabStrip", "Toolbar", "StatusBar", "ProgressBar", "TreeView", "ListView",
                                     "ImageList", "Slider", "ImageCombo"));
    EXPECT_THAT(controlsOf(*foreignLibrary("MSComCtl2")),
                testing::ElementsAre("Animation", "UpDown", "MonthView", "DTPicker", "FlatScrollBar"));
    EXPECT_THAT(controlsOf(*foreignLibrary("MSDataListLib")), testing::ElementsAre("DataList", "DataCombo"));
    EXPECT_THAT(controlsOf(*foreignLibrary("Scripting")), testing::IsEmpty());
}

TEST(ForeignLibraries, NameASubstituteAndAReason) {
    std::set<std::string> guids, names;
    const auto check = [](bool onDevices, const std::string& instead, const std::string& place) {
        EXPECT_EQ(onDevices, instead.empty()) << place;
        const bool isInstruction =
            instead.starts_with("Use ") || instead.starts_with("Remove it") || instead.starts_with("Write ");
        EXPECT_TRUE(onDevices || (isInstruction && instead.find(": ") != std::string::npos))
            << place << ": " << instead;
    };
    for (const auto& library : language::foreignLibraries()) {
        EXPECT_TRUE(names.insert(library.name).second) << library.name;
        for (const auto& guid : library.guids) EXPECT_TRUE(guids.insert(guid).second) << guid;
        check(library.onDevices, library.instead, library.name);
        if (library.onDevices) continue;
        for (const auto& group : library.groups)
            if (group.control) check(group.onDevices, group.instead, library.name + "." + group.name);
    }
}

TEST(ForeignLibraries, WhatDevicesLackHasASubstituteOrAReason) {
    const auto check = [](const auto& each, const std::string& place) {
        EXPECT_TRUE(each.onDevices || !each.instead.empty()) << place << each.name;
    };
    const auto checkLibrary = [&](const language::Library& library) {
        check(library, "");
        for (const auto& group : library.groups) {
            check(group, library.name + ".");
            for (const auto& member : group.members) check(member, library.name + "." + group.name + ".");
        }
    };
    for (const auto* library : language::builtInLibraries()) checkLibrary(*library);
    for (const auto& library : language::foreignLibraries()) checkLibrary(library);
    EXPECT_FALSE(language::insteadOfDeclare().empty());
}

TEST(ForeignLibraries, DescribeDictionariesAndFiles) {
    const auto* dictionary = findClass("scripting.dictionary");
    ASSERT_TRUE(dictionary);
    EXPECT_TRUE(dictionary->creatable && dictionary->onDevices && !dictionary->open);
    EXPECT_TRUE(lookup::member(*dictionary, "Item")->isDefault);
    EXPECT_TRUE(findClass("Scripting.FileSystemObject")->onDevices);
    EXPECT_FALSE(findClass("Scripting.Drive")->onDevices);
}

TEST(FindClass, FindsClassesOnly) {
    EXPECT_TRUE(findClass("VB.Form"));
    EXPECT_EQ(findClass("vb.textbox"), findClass("VB.TextBox"));
    EXPECT_TRUE(findClass("MSComctlLib.TreeView"));
    for (const auto* none :
         {"", "VB", "VB.", ".Form", "VB.Nothing", "VBA.Strings", "VBA.VbVarType", "Other.Form", "VB.Form.Caption"})
        EXPECT_FALSE(findClass(none)) << none;
}

TEST(FindDeclared, IgnoresExtensionCaseAndVariant) {
    const auto* path = findDeclared("kernel32", "GetTempPath");
    ASSERT_TRUE(path);
    EXPECT_TRUE(path->onDevices);
    EXPECT_EQ(findDeclared("KERNEL32.DLL", "GetTempPathA"), path);
    EXPECT_EQ(findDeclared("kernel32", "GetTempPathW"), path);
    EXPECT_FALSE(findDeclared("user32", "GetTempPathA"));
    EXPECT_FALSE(findDeclared("kernel32", "A"));
    EXPECT_FALSE(findDeclared("", ""));
    EXPECT_FALSE(findDeclared("kernel32", "RtlMoveMemory")->onDevices);
}

} // namespace
