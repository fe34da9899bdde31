#pragma once
// Texts shown while the add-in starts and projects are loaded.

namespace fernwick::connect_texts {

inline constexpr char kTitle[] = "Fernwick";
inline constexpr char kNoMenu[] = "Could not add Fernwick Tools menu;";
inline constexpr char kNoToolbar[] = "Could not add Fernwick Toolbar;";
inline constexpr char kNoSupportToolbar[] = "Could not add Quinloft Converters and Viewers Toolbar;";
/// The texts before and after the step that failed.
inline constexpr char kFailedStepBefore[] = "ERROR!\r\n\r\n";
inline constexpr char kFailedStepAfter[] = "\r\nFailing to install Fernwick Add-In";

/// The texts before and after the device's key.
inline constexpr char kTypeNotSupportedBefore[] = "This component type is not supported on ";
inline constexpr char kTypeNotSupportedAfter[] = " devices";

inline constexpr char kForeignControl[] =
    "ERROR!\r\n\r\nThis control will not work with a Fernwick project and will be removed.";
inline constexpr char kSaveForControls[] = "The project must be saved before Tavlets can be added to a form.";

inline constexpr char kNoDevicesTitle[] = "No devices selected";
inline constexpr char kNoDevices[] = "To continue with this option, you must first select which devices will be used. "
                                     "Continue and select devices?";
inline constexpr char kDownloadTitle[] = "Connect to Quinloft Web Site";
inline constexpr char kDownload[] =
    "Quinloft Tamarik\xE2\x84\xA2 is required to run deployed applications. Click \"OK\" to download the latest "
    "version of Tamarik from the Quinloft website. (Requires Internet connection.)";

inline constexpr char kNoUtility[] = "Could Not Launch Converter/Viewer;\r\n"
                                     "Application is missing or not in default location.\r\n\r\n"
                                     "The Viewers and Converters can be found on the Quinloft website.";
inline constexpr char kNoConfiguration[] = "Could Launch Weirgate Configuration;\r\n" // sic
                                           "Application is missing or not in default location.";

inline constexpr char kNoTutorial[] = "Error finding Fernwick Hello World Tutorial.";
inline constexpr char kNoSamplesDir[] = "Error getting Fernwick samples directory.";
inline constexpr char kSamplesDirMissing[] = "Could get open the samples directory;\r\n"               // sic
                                             "Quinloft Samples are located on the Quinloft website.."; // sic

inline constexpr char kOldProjectTitle[] = "Warning: Pre Quinloft Fernwick 3.5 Project";
inline constexpr char kOldProject[] =
    "This project was created with an older version of Quinloft Fernwick and will not work with this version. The "
    "project must be converted before it can be run safely in this version of Fernwick. After any additional error "
    "dialogs are dismissed, Fernwick will start the Project Converter. Follow the Project Converter instructions to "
    "make this a valid Fernwick 3.5 project.";

} // namespace fernwick::connect_texts
