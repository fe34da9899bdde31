#include "Host/model/references/control_libraries.h"

namespace host {
namespace {

const std::vector<ControlLibrary>& controlLibraries() {
    static const std::vector<ControlLibrary> kLibraries{
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
    return kLibraries;
}

} // namespace

const ControlLibrary* controlLibraryOf(std::string_view guid) {
    for (const auto& library : controlLibraries())
        if (library.guid == guid) return &library;
    return nullptr;
}

} // namespace host
