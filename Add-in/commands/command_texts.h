#pragma once
// The texts of the menu, the toolbars, help and the About box that are not in the table of commands.
#include "Add-in/commands/command_table.h"

namespace fernwick {

namespace command_texts {

// Entries of the string table that are not a command's
inline constexpr ResString kMenuString{101, "&Fernwick"};
inline constexpr ResString kToolbarString{201, "Fernwick"};
inline constexpr ResString kSampleIntroString{261, "Introduction to Fernwick"};
inline constexpr ResString kSampleHelloString{262, "Hello World Tutorial"};
inline constexpr ResString kSampleDirString{263, "Open samples directory"};
// Kept in the table; the menu does not use them
inline constexpr ResString kPalmOSString{105, "&Palm OS"};
inline constexpr ResString kPocketPCString{106, "P&ocketPC"};
inline constexpr ResString kDeployToTargetString{107, "Deploy To Design &Target"};

/// The only item of a device popup when no design target is usable.
inline constexpr char kNoDevices[] = "No Available Devices";
/// The deploy button's tip, before the name of the design target.
inline constexpr char kDeployTo[] = "Deploy to ";
/// Part of the caption of the item that the project importer, a sibling, adds to the utilities.
inline constexpr char kConverterCaption[] = "Fernwick Project Converter";

inline constexpr char kNoMenuTitle[] = "ERROR: Could not Add Fernwick Tools Submenu";
inline constexpr char kNoMenu[] =
    "CRITICAL_ERROR: Could not find main menu named '{bar}'\r\n\r\n{description} ({number})";

inline constexpr char kTitle[] = "Fernwick";
inline constexpr char kNoHelp[] = "No help is available on this topic";
/// Followed by the path.
inline constexpr char kHelpMissing[] =
    "Specified Help File Not Found;\r\nHelp file is missing or not in default location:\r\n";

inline constexpr char kAboutTitle[] = "About Fernwick";
inline constexpr char kProduct[] = "Quinloft Fernwick";
inline constexpr char kVersion[] = "Version 3.5.0 (0624)";
inline constexpr char kMaker[] = "Fernwick turns Visual Basic projects into applications for handheld devices.";
/// The texts before and after the vendor's address.
inline constexpr char kVisit[] = "Visit ";
inline constexpr char kMoreInformation[] = " for more information.";

} // namespace command_texts

} // namespace fernwick
