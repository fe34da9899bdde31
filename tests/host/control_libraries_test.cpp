// What the host knows of libraries that are not registered.
#include "Host/model/references/control_libraries.h"
#include "Host/model/references/language_libraries.h"
#include <gmock/gmock.h>

TEST(ControlLibraries, AreKnownWithTheirClasses) {
    const host::ControlLibrary libraries[] = {
        {"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}",
         "MSComctlLib",
         {"TabStrip", "Toolbar", "StatusBar", "ProgressBar", "TreeView", "ListView", "ImageList", "Slider",
          "ImageCombo"}},
        {"{6B7E6392-850A-101B-AFC0-4210102A8DA7}",
         "ComctlLib",
         {"TabStrip", "Toolbar", "StatusBar", "ProgressBar", "TreeView", "ListView", "ImageList", "Slider"}},
        {"{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}",
         "MSComCtl2",
         {"Animation", "UpDown", "MonthView", "DTPicker", "FlatScrollBar"}},
        {"{C932BA88-4374-101B-A56C-00AA003668DC}", "MSMask", {"MaskEdBox"}},
        {"{BDC217C8-ED16-11CD-956C-0000C04E4C0A}", "TabDlg", {"SSTab"}},
        {"{5E9E78A0-531B-11CF-91F6-C2863C385E30}", "MSFlexGridLib", {"MSFlexGrid"}},
        {"{0ECD9B60-23AA-11D0-B351-00A0C9055D8E}", "MSHierarchicalFlexGridLib", {"MSHFlexGrid"}},
        {"{CDE57A40-8B86-11D0-B3C6-00A0C90AEA82}", "MSDataGridLib", {"DataGrid"}},
        {"{F0D2F211-CCB0-11D0-A316-00AA00688B10}", "MSDataListLib", {"DataList", "DataCombo"}},
        {"{3B7C8863-D78F-101B-B9B5-04021C009402}", "RichTextLib", {"RichTextBox"}},
        {"{F9043C88-F6F2-101A-A3C9-08002B2F49FB}", "MSComDlg", {"CommonDialog"}},
        {"{248DD890-BB45-11CF-9ABC-0080C7E7B78D}", "MSWinsockLib", {"Winsock"}},
        {"{48E59290-9880-11CF-9754-00AA00C00908}", "InetCtlsObjects", {"Inet"}},
        {"{648A5603-2C6E-101B-82B6-000000000014}", "MSCommLib", {"MSComm"}},
    };
    for (const auto& expected : libraries) {
        const auto* known = host::controlLibraryOf(expected.guid);
        ASSERT_TRUE(known) << expected.guid;
        EXPECT_EQ(known->name, expected.name);
        EXPECT_EQ(known->classes, expected.classes);
    }
    EXPECT_FALSE(host::controlLibraryOf("{00000000-0000-0000-0000-000000000000}"));
}

TEST(LanguageLibraries, AreDescribedAsInTheReferencesDialog) {
    const auto& [vba, vbrun, vb] = host::kLanguageLibraries;
    EXPECT_EQ(vba.description, "Visual Basic For Applications");
    EXPECT_EQ(vbrun.description, "Visual Basic runtime objects and procedures");
    EXPECT_EQ(vb.description, "Visual Basic objects and procedures");
    EXPECT_EQ(vbrun.file, "MSVBVM60.DLL\\3");
    EXPECT_EQ(vb.file, "VB6.OLB");
}
