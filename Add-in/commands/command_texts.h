#pragma once
// What users read on the menu and the toolbars.
#include <string>

namespace fernwick {

/// Numbers of the string table.
enum StringId : int {
    // Menu
    kMenuString = 101,
    kCompileAndValidateString = 102,
    kSavePackageString = 103,
    kToMyDevicesString = 104,
    kPalmOSString = 105,
    kPocketPCString = 106,
    kDeployToTargetString = 107,
    kDeployToDeviceString = 108,
    kSettingsString = 109,
    kInstallRuntimeString = 110,
    kUsersGuideString = 111,
    kWebString = 112,
    kAboutString = 114,
    kZoomString = 115,
    kOpenProjectString = 116,
    kDownloadRuntimeString = 117,
    kMessagesString = 118,
    // Main toolbar
    kToolbarString = 201,
    kCompileTip = 202,
    kDeployTip = 203,
    kSettingsTip = 204,
    kUsersGuideTip = 205,
    kZoomTip = 206,
    kOpenProjectTip = 207,
    // Utilities: menu and toolbar alike
    kUtilitiesString = 250,
    kDatabaseConverterString = 251,
    kFontConverterString = 252,
    kFontViewerString = 253,
    kGraphicsConverterString = 254,
    kGraphicsViewerString = 255,
    kMovieConverterString = 256,
    kMovieViewerString = 257,
    kWeirgateString = 258,
    kDatabaseViewerString = 259,
    // Samples
    kSamplesString = 260,
    kSampleIntroString = 261,
    kSampleHelloString = 262,
    kSampleDirString = 263,
};

/// A text of the string table.
std::string LoadResString(StringId id);

namespace command_texts {

/// A device popup where no design target is usable.
inline constexpr char kNoDevices[] = "No Available Devices";
/// The deploy button's tip, before the name of the design target.
inline constexpr char kDeployTo[] = "Deploy to ";
/// What stands in the caption of the item that the project importer, a sibling, adds to the utilities.
inline constexpr char kConverterCaption[] = "Fernwick Project Converter";

inline constexpr char kNoMenuTitle[] = "ERROR: Could not Add Fernwick Tools Submenu";
inline constexpr char kNoMenu[] =
    "CRITICAL_ERROR: Could not find main menu named '{bar}'\r\n\r\n{description} ({number})";

inline constexpr char kTitle[] = "Fernwick";
inline constexpr char kNoHelp[] = "No help is available on this topic";
/// Before the path.
inline constexpr char kHelpMissing[] =
    "Specified Help File Not Found;\r\nHelp file is missing or not in default location:\r\n";

inline constexpr char kAboutTitle[] = "About Fernwick";
inline constexpr char kProduct[] = "Quinloft Fernwick";
inline constexpr char kVersion[] = "Version 3.5.0 (0624)";
inline constexpr char kMaker[] = "Fernwick turns Visual Basic projects into applications for handheld devices.";
/// Around the maker's address.
inline constexpr char kVisit[] = "Visit ";
inline constexpr char kMoreInformation[] = " for more information.";

} // namespace command_texts

} // namespace fernwick
