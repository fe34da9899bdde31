#pragma once
// Texts of the settings dialog.

namespace fernwick::settings_texts {

inline constexpr char kCaption[] = "Fernwick Settings";
/// Of boxes.
inline constexpr char kTitle[] = "Fernwick";

// The tree. Each root is also the key of its node; the first is shown as the project's name and the suffix.
inline constexpr char kProjectRoot[] = "Project Settings";
inline constexpr char kProjectRootSuffix[] = " - Project Settings";
inline constexpr char kGeneralRoot[] = "General Settings";

// Application name and icon.
inline constexpr char kAboutAppName[] =
    "You can change the default settings Fernwick uses to generate an application name and icon for your project.";
inline constexpr char kSpacesInName[] = "&Convert underscores in project name to spaces.";
inline constexpr char kAppNameTip[] = "To change this name, edit the Project Name property.";
inline constexpr char kIconPathTip[] = "Use the Browse button to select the icon file for this project.";
inline constexpr char kBrowseIconTip[] = "Select the icon file for this project.";
inline constexpr char kIconFilter[] = "Icon File (*.ico)|*.ico";
inline constexpr char kIconMissing[] = "ERROR - The icon specified was not found. Will use the default Icon.";
inline constexpr char kIconWarningTitle[] = "Icon Warning";
inline constexpr char kIconWarning[] =
    "The icon file associated with this project could lock up a Pocket PC 2000 device.  The icon file must contain at "
    "least one icon with a color depth less than 24bpp to avoid this issue.";

// Compiler settings.
inline constexpr char kReferenceChecking[] = "Turn off reference checking during compilation";
inline constexpr char kStepMissing[] = "Please enter a valid file name before trying to add a step.";
inline constexpr char kStepNotFound[] =
    "The specified file does not exist.  Please enter a valid file name before trying to add a step.";
inline constexpr char kBrowseStep[] = "Browse for executable...";
inline constexpr char kStepFilter[] = "Executables (*.exe;*.com;*.bat)|*.exe;*.com;*.bat|All Files (*.*)|*.*";
inline constexpr char kRemoveSteps[] = "Are you sure you wish to remove the selected step(s)?";
inline constexpr char kNoCompilerHelp[] = "Could not find required Fernwick help files, installation may be corrupt.";
inline constexpr char kTrustFolder[] = "&Trust this folder: its projects may run their steps";
inline constexpr char kTrustFolderTip[] = "Steps are programs. Trust the folder only if you know the projects in it. "
                                          "The next question about it is not asked.";
inline constexpr char kTrustNotStored[] = "Your settings cannot be written, so the trust in the folder did not change.";
inline constexpr char kTrustNeedsSaving[] = "Save the project first: the folder that is trusted is the project's.";

// Dependencies.
inline constexpr char kAboutDependencies[] =
    "Fernwick can automatically determine many of the dependencies your project requires. However, some files and "
    "resources that are referenced only in code may not be detected. You may choose to add or remove additional "
    "dependencies such as databases or elements changed at runtime.";
inline constexpr char kAboutAutomaticDependencies[] =
    "The following is a list of file dependencies that Fernwick automatically detected  during your last compile "
    "operation. This list will be automatically updated the next time you compile this project.";
inline constexpr char kAddTip[] = "Add new dependency files to the list.";
inline constexpr char kRemoveTip[] = "Remove the selected dependencies from the list";
inline constexpr char kSaveBeforeAdding[] = "Before adding dependencies the project must be saved.";
/// Preceded by the name.
inline constexpr char kListedAlready[] = " already is in the dependency list.";

// My Devices.
inline constexpr char kAboutMyDevices[] =
    "This list allows you to select the devices which you have connected.  The devices that are checked in the list "
    "below will be used when any of the 'To My Devices' menu items are selected in the Fernwick menu.";

} // namespace fernwick::settings_texts
