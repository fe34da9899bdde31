#pragma once
// What users read of a build.
#include <string>

namespace fernwick::build_texts {

inline constexpr char kTitle[] = "Fernwick";

// The messages window
inline constexpr char kMessagesCaption[] = "Fernwick Messages";
inline constexpr char kStatusLabelAtFirst[] = "Status:";
inline constexpr char kCompileStatus[] = "Compile Status:";
inline constexpr char kCompilingAndValidating[] = "Compiling and validating...";

/// The three outcomes of a compile or validation, for ProjectStatusText, which fills in the numbers.
struct Outcome {
    std::string success = "SUCCESS - Compile and validate completed successfully.";
    std::string warning = "SUCCESS with Warnings - This project can be deployed, but may not function as expected.";
    std::string failure = "FAILED - Errors ($ERRORNUM$ items) must be fixed to deploy this project.";
};

// Before a compile
inline constexpr char kSaveFilesFirst[] =
    "Cannot compile the project.\r\n\r\nPlease save all project files and then recompile.";
inline constexpr char kMustBeSavedBefore[] = "All files in the ";
inline constexpr char kMustBeSavedAfter[] =
    " project must be saved before compiling.\r\nDo you want to save now and continue compiling?";
/// The support address follows.
inline constexpr char kSavingFailed[] = "Unknown error trying to save files, please contact Quinloft at ";
inline constexpr char kToolsMissing[] = "Compiler tools could not be loaded. Terminating compile.";
inline constexpr char kPleaseContact[] = "Please contact Quinloft at ";
inline constexpr char kToolsMissingMessage[] = "Compiler tools could not be loaded. Please contact Quinloft at ";
/// The project's name stands before it.
inline constexpr char kReadOnlyProject[] = " is ReadOnly, compile errors will not be saved.";
inline constexpr char kPreStepsFailed[] =
    "One or more of your pre compile steps may have failed.  Do you wish to continue with compilation?";

// During a compile
inline constexpr char kCompiling[] = "Compiling ";
inline constexpr char kBuildStarted[] = "Compiler Build Started";
inline constexpr char kScanningDependencies[] = "Scanning Project Dependencies...";
inline constexpr char kFinishedWithError[] = "Compile Finished with Error";
inline constexpr char kRunningPostSteps[] = "Running PostCompile Steps...";
inline constexpr char kUnexpectedDependency[] = "Recieved unexpected dependency type from compiler.";

// After a compile
inline constexpr char kPostStepsFailed[] = "Warning, One or more of your post compile steps may have failed.";
inline constexpr char kCompileFailed[] =
    "One or more errors occurred during compilation.\r\nRefer to the Fernwick Messages window for the list of errors.";

} // namespace fernwick::build_texts
