// What a form's designer shows around it.
#include "Apps/workbench/designer/form_reader.h"
#include "tests/support/sample_project.h"
#include "tests/support/test_host.h"
#include <gtest/gtest.h>

namespace {

/// "C" a control box, "m" and "M" the buttons that make a form smallest and largest, "s" a small title.
std::string titleOf(const std::string& properties) {
    test::TestHost host;
    const auto project = host.open(test::SampleProject().member(
        "Form=frmMain.frm", "frmMain.frm",
        "VERSION 5.00\r\nBegin VB.Form frmMain \r\n" + properties + "End\r\nAttribute VB_Name = \"frmMain\"\r\n"));
    const auto form = workbench::pictureOfForm(*project->VBComponents()->Item(1));
    std::string title;
    if (form.controlBox) title += "C";
    if (form.minButton) title += "m";
    if (form.maxButton) title += "M";
    if (form.smallTitle) title += "s";
    return title;
}

} // namespace

TEST(FormFrame, HasAllButtonsUnlessTheFormSaysOtherwise) {
    EXPECT_EQ(titleOf(""), "CmM");
    EXPECT_EQ(titleOf("   MinButton       =   0   'False\r\n"), "CM");
    EXPECT_EQ(titleOf("   MaxButton       =   0   'False\r\n"), "Cm");
    EXPECT_EQ(titleOf("   ControlBox      =   0   'False\r\n"), "");
}

TEST(FormFrame, OfADialogCannotBeSized) {
    EXPECT_EQ(titleOf("   BorderStyle     =   1  'Fixed Single\r\n"), "CmM");
    EXPECT_EQ(titleOf("   BorderStyle     =   3  'Fixed Dialog\r\n"), "C");
}

TEST(FormFrame, OfAToolWindowHasASmallTitle) {
    EXPECT_EQ(titleOf("   BorderStyle     =   4  'Fixed ToolWindow\r\n"), "Cs");
    EXPECT_EQ(titleOf("   BorderStyle     =   5  'Sizable ToolWindow\r\n"), "Cs");
}
