#pragma once
// Texts of a build that users see.
#include <string>

namespace fernwick::build_texts {

inline constexpr char kTitle[] = "Fernwick";

// The messages window
inline constexpr char kMessagesCaption[] = "Fernwick Messages";
inline constexpr char kStatusLabelAtFirst[] = "Status:";
inline constexpr char kCompileStatus[] = "Compile Status:";
inline constexpr char kCompilingAndValidating[] = "Compiling and validating...";

/// The wording is kept because users know it.
// sic: Could Launch
inline constexpr char kNoFontConverter[] = "ERROR!\r\n\r\nCould Launch Converter/Viewer;\r\n"
                                           "Application is missing or not in default location.";
/// Shown before the list of help pages opens.
inline constexpr char kNoHelpPage[] =
    "There is no help page for message {number}. The list of all help pages opens instead.";

// The outcomes of a compile or validation
inline constexpr char kSucceeded[] = "SUCCESS - Compile and validate completed successfully.";
inline constexpr char kSucceededWithWarnings[] =
    "SUCCESS with Warnings - This project can be deployed, but may not function as expected.";
inline constexpr char kErrorsToFix[] = "FAILED - Errors ($ERRORNUM$ items) must be fixed to deploy this project.";
/// The arguments of ProjectStatusText, which fills in the numbers.
struct Outcome {
    std::string success = kSucceeded, warning = kSucceededWithWarnings, failure = kErrorsToFix;
};

// Before a compile
inline constexpr char kSaveFilesFirst[] =
    "Cannot compile the project.\r\n\r\nPlease save all project files and then recompile.";
inline constexpr char kMustBeSaved[] = "All files in the {project} project must be saved before compiling.\r\n"
                                       "Do you want to save now and continue compiling?";
inline constexpr char kSavingFailed[] = "Unknown error trying to save files, please contact Quinloft at {address}";
inline constexpr char kToolsMissing[] = "Compiler tools could not be loaded. Terminating compile.\r\n"
                                        "Please contact Quinloft at {address}";
inline constexpr char kToolsMissingMessage[] =
    "Compiler tools could not be loaded. Please contact Quinloft at {address}";
inline constexpr char kReadOnlyProject[] = "{project} is ReadOnly, compile errors will not be saved.";
inline constexpr char kPreStepsFailed[] =
    "One or more of your pre compile steps may have failed.  Do you wish to continue with compilation?";

// During a compile
inline constexpr char kCompiling[] = "Compiling {project}...";
inline constexpr char kBuildStarted[] = "Compiler Build Started";
inline constexpr char kScanningDependencies[] = "Scanning Project Dependencies...";
inline constexpr char kFinishedWithError[] = "Compile Finished with Error";
inline constexpr char kRunningPostSteps[] = "Running PostCompile Steps...";
inline constexpr char kUnexpectedDependency[] = "Recieved unexpected dependency type from compiler."; // sic

// After a compile
inline constexpr char kPostStepsFailed[] = "Warning, One or more of your post compile steps may have failed.";
inline constexpr char kCompileFailed[] =
    "One or more errors occurred during compilation.\r\nRefer to the Fernwick Messages window for the list of errors.";

// Dependencies
inline constexpr char kSaveBeforeScan[] = "Before scanning for dependencies the project must be saved.";
inline constexpr char kEmptyProject[] = "This project is empty!";
inline constexpr char kScanningComponent[] = "Scanning {component}...";
inline constexpr char kScanFinished[] = "Finished";
/// "Weight" is the size (sic).
inline constexpr char kFontMissing[] =
    "Could Not Find \"{font}\" Weight:{size} Style:{style} referenced in {component}{remedy}";
inline constexpr char kFontMissingOnPalm[] = " Double-click this error to start the Font Converter. Converted font "
                                             "must be located in the Quinloft\\Fonts directory.";
inline constexpr char kFontMissingElsewhere[] =
    " If this font is not already on the device, either add the font as a dependency, or convert the font and store "
    "it in the Quinloft/Fonts directory.";
inline constexpr char kSelectDependency[] = "Select a dependency file.";
/// There is no "|" after the Symbian databases: that kind and the next are displayed as one, as they always were.
inline constexpr char kDependencyKinds[] = "All Files(*.*)|*.*|"
                                           "Quinloft Font(*.cmf)|*.cmf|"
                                           "True Type Font (*.ttf)|*.ttf|"
                                           "Symbian Bitmap Font (*.gdr)|*.gdr|"
                                           "Quinloft Graphic(*.rgx)|*.rgx|"
                                           "Bitmap (*.bmp)|*.bmp|"
                                           "PNG (*.png)|*.png|"
                                           "JPEG (*.jpg, *.jpe)|*.jpg;*.jpe|"
                                           "Quinloft Movie(*.rmv)|*.rmv|"
                                           "Palm Database(*.pdb)|*.pdb|"
                                           "Pocket Access Database (*.cdb)|*.cdb|"
                                           "Symbian Database (*.db)|*.db"
                                           "WAV (*.wav)|*.wav|"
                                           "Midi (*.mid, *.miz)|*.mid;*.miz|"
                                           "Beatnik Rich Music Format (*.rmf)|*.rmf|"
                                           "Nokia Ringtone (*.rng)|*.rng|"
                                           "UIQ208 Ringtone (*.imy)|*.imy|"
                                           "Text File (*.txt)|*.txt|";
inline constexpr char kCopyDependency[] = "All dependency files must exist in the project folder.\r\n\r\n"
                                          "Would you like to copy\r\n{file}\r\nto\r\n{folder} ?";
inline constexpr char kNotCopied[] = "Error copying file!";
inline constexpr char kReplaceDependency[] = "The project folder already contains another file of this name.\r\n\r\n"
                                             "Replace {file} ?";
inline constexpr char kCommaInDependency[] =
    "{file} cannot be a dependency, since its name contains a comma. Rename the file and add it again.";
inline constexpr char kFolderAsDependency[] =
    "{folder} cannot be a dependency, since it is a folder. Add the files in it instead.";

// During a validation
inline constexpr char kValidating[] = "Validating {project}...";
inline constexpr char kValidationFinished[] = "Finished";
inline constexpr char kNoDesignTargets[] = "Error Creating DesignTargetAccess Object, please contact Quinloft support";

// What a validation finds
inline constexpr char kReferenceMissing[] =
    "There is a missing reference in this project, please remove the reference.";
inline constexpr char kUnknownLibrary[] = "TypeLib with UUID = {guid}";
inline constexpr char kComponentNotSupported[] = // sic: ingore
    "{name} is not supported and may cause errors on a {platform} device.  To ingore this warning and deploy to any "
    "device, turn off reference checking in the Compiler section of the Fernwick Settings screen. (Double-Click here "
    "to open the Fernwick Settings.)";
inline constexpr char kReservedName[] = "\"{name}\" is illegal as a {kind} name. It is a reserved word.";
inline constexpr char kFormKind[] = "form", kControlKind[] = "control";
inline constexpr char kScaleModeNotPixels[] = "Form ScaleMode must be set to Pixels";
inline constexpr char kStartUpPositionManual[] =
    "Using a StartUpPosition of Manual could cause the application to not be visible on the device.";
inline constexpr char kFormPicture[] = "The Picture property of Forms is not supported.";
inline constexpr char kBorderStyle[] = "The only valid selections for the BorderStyle property of Forms are "
                                       "\"0 - None\", \"1 - Fixed Single\", or \"3 - Fixed Dialog\".";
inline constexpr char kControlEventNotSupported[] =
    "{procedure} is not supported by Quinloft Fernwick for {class}{{{control}}}";
inline constexpr char kFormEventNotSupported[] =
    "{procedure} is not supported by Quinloft Fernwick for {form}{instead}";
inline constexpr char kUseClickAndTimer[] = ", consider using the Click Event and TimerMS function";
inline constexpr char kUseActivate[] = ", consider using the Activate Event";
inline constexpr char kUseKeyPress[] = ", consider using the KeyPress Event";
inline constexpr char kUseDeactivate[] = ", consider using the Deactivate Event";
inline constexpr char kUseClick[] = ", consider using the Click Event";

} // namespace fernwick::build_texts
