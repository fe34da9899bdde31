#include "Host/model/forms/class_events.h"
#include <algorithm>
#include <gmock/gmock.h>

namespace {

using namespace host;

std::string parametersOf(const char* className, const char* event) {
    for (const auto& one : languageEvents(className))
        if (one.name == event) return one.parameters;
    return "no such event";
}

} // namespace

TEST(ClassEvents, AreInAlphabeticalOrderAndKnownOnce) {
    for (const auto* name : {"VB.Form", "VB.UserControl", "VB.PictureBox", "MSComctlLib.ListView"}) {
        std::vector<std::string> events;
        for (const auto& event : languageEvents(name)) events.push_back(event.name);
        EXPECT_TRUE(std::is_sorted(events.begin(), events.end())) << name;
        EXPECT_EQ(std::adjacent_find(events.begin(), events.end()), events.end()) << name;
        EXPECT_THAT(events, testing::Contains(defaultEventOf(name))) << name;
    }
    EXPECT_EQ(languageEvents("VB.Form").size(), 31u);
    EXPECT_EQ(languageEvents("vb.commandbutton").size(), 17u);
}

TEST(ClassEvents, HaveTheParametersOfTheirClass) {
    EXPECT_EQ(parametersOf("VB.Form", "QueryUnload"), "Cancel As Integer, UnloadMode As Integer");
    EXPECT_EQ(parametersOf("VB.ListBox", "ItemCheck"), "Item As Integer");
    EXPECT_EQ(parametersOf("MSComctlLib.ListView", "ItemCheck"), "ByVal Item As MSComctlLib.ListItem");
    EXPECT_EQ(parametersOf("VB.TextBox", "OLESetData"), "Data As DataObject, DataFormat As Integer");
    EXPECT_EQ(parametersOf("MSComctlLib.TreeView", "OLESetData"),
              "Data As MSComctlLib.DataObject, DataFormat As Integer");
    EXPECT_EQ(parametersOf("ComctlLib.TreeView", "NodeClick"), "ByVal Node As ComctlLib.Node");
    EXPECT_EQ(parametersOf("TabDlg.SSTab", "Click"), "PreviousTab As Integer");
    EXPECT_EQ(parametersOf("VB.TextBox", "Validate"), "Cancel As Boolean");
    EXPECT_EQ(parametersOf("VB.Data", "Validate"), "Action As Integer, Save As Integer");
}

TEST(ClassEvents, OthersHaveNone) {
    EXPECT_TRUE(languageEvents("Unknown.Control").empty());
    EXPECT_TRUE(languageEvents("TavletsCtl.QLTimer").empty()) << "its description has them";
    EXPECT_EQ(defaultEventOf("TavletsCtl.QLTimer"), "Timer");
    EXPECT_EQ(defaultEventOf("TavletsCtl.QLButton"), "Click");
    EXPECT_EQ(defaultEventOf("Unknown.Control"), "");
}
