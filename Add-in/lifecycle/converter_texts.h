#pragma once
// Texts shown while a project is converted to another device.

namespace fernwick::converter_texts {

inline constexpr char kTitle[] = "Fernwick";

// The choice of the new device.
inline constexpr char kNoTargets[] =
    "There were no valid design targets found for your project.  THe project cannot be converted."; // sic
inline constexpr char kTargetUnreadable[] =
    "Error getting information about chosen design target, conversion cancelled.";
inline constexpr char kLeaveUnconverted[] =
    "If you continue without converting the project you may recieve errors.  Do you wish to continue?"; // sic

/// Followed by two line ends and the names of the references, one a line.
inline constexpr char kInvalidReferences[] = "The following references are not valid for your new design target:";
/// Preceded by a line end.
inline constexpr char kRemoveReferences[] = "You will not be able to deploy your project until these references are "
                                            "removed. Would you like these references to be removed now?";

// The place of a copy.
inline constexpr char kChoosePlace[] = "Select the location for your new project.";
inline constexpr char kProjectFilter[] = "Quinloft 2.0 Project(*.vbp)|*.vbp|";
inline constexpr char kSameFolder[] = "Cannot create new project in the same folder as the original folder.";

// Files that were not copied.
inline constexpr char kNoFolder[] =
    "Failed to find directory for converted proejct.  Check permissions on specified folder."; // sic
inline constexpr char kFilesNotCopied[] =
    "Some or all of your project files were not copied, please check the project files.";
inline constexpr char kDependenciesNotCopied[] = "Some or all of your file dependencies for the porject did not copy, "
                                                 "please check the dependencies of the project."; // sic
/// Followed by the paths, one a line.
inline constexpr char kFilesReplaced[] = "These files will be replaced:";
inline constexpr char kFilesOutside[] = "These files will be written outside of the new project's folder:";
inline constexpr char kCopyThem[] = "Do you want to continue?";
/// Followed by the path of the new project.
inline constexpr char kDeviceNotStored[] =
    "The new project does not name the chosen device. Set it in the project's settings: ";

/// Followed by the path of the group.
inline constexpr char kGroupNamesOld[] = "The project group still names the old project file, not the copy: ";

// A conversion in place.
/// Followed by the reason.
inline constexpr char kNotBackedUp[] = "The project file could not be backed up, so nothing was changed. ";

// A project whose device is not available.
inline constexpr char kWarningCaption[] = "Fernwick Configuration Issue Detected";
/// The platform's name belongs between the two.
inline constexpr char kUnsupportedBefore[] =
    "The project you are attempting to open was created with a version of Fernwick which supported ";
inline constexpr char kUnsupportedAfter[] =
    " devices.  The version of Fernwick you currently have installed does not support these devices.";
inline constexpr char kOtherConfiguration[] =
    "The project you are attempting to open was created with a version of Fernwick which contained a different "
    "configuration than the one present.";

} // namespace fernwick::converter_texts
