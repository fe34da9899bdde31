#pragma once
// Texts shown while a project or the runtime is sent to a device.
#include "Add-in/build/messages/build_texts.h"

namespace fernwick::deploy_texts {

inline constexpr char kTitle[] = "Fernwick";
/// For boxes without a title.
inline constexpr char kNoTitle[] = "";

// Before a project is sent
inline constexpr char kNotCurrent[] = "The compiled file is not current. Would you like to compile?";
inline constexpr char kStillDeploy[] = "This project has compile errors. Would you still like to deploy?";

// While it is sent
inline constexpr char kCreating[] = "Creating {project} Device Package...";
inline constexpr char kUploading[] = "Uploading {project}...";
inline constexpr char kConnectingPipe[] = "Attempting to pipe create connection...";
inline constexpr char kGatheringList[] = "Gathering Project List...";
inline constexpr char kScanningDependencies[] = "Scanning Project for Dependencies...";
inline constexpr char kInvalidDependencies[] = "One or more of the specified dependency files are invalid\r\n"
                                               "Would you like to edit the project dependencies?";
inline constexpr char kCreateComplete[] = "Create Complete";
inline constexpr char kUploadComplete[] = "Upload Complete";
inline constexpr char kPackageMade[] =
    "The project package was successfully created and saved to the specified location.";

// The files to be sent
inline constexpr char kNoProjectFolder[] = "ERROR - Could not find folder for project path.";
inline constexpr char kMissingDependency[] = "ERROR: Missing Dependency File, would you like to continue?\r\n{path}";
inline constexpr char kMissingFont[] = "ERROR: Missing Font File, would you like to continue?\r\n{path}";

// Failures
inline constexpr char kNoPipe[] = "ERROR - Could not create {pipe}. Please contact Quinloft technical support.";
inline constexpr char kErrorIn[] = "Error in {source}: ({number}) {description}";
inline constexpr char kPipeError[] = "ERROR - {message} ({number})";
inline constexpr char kMissingFiles[] = "Missing executable files, please compile project.";
inline constexpr char kMissingFilesBox[] = "ERROR - Missing executable files, please compile project.";
inline constexpr char kValidationFailedTitle[] = "Validation Failed";
inline constexpr char kValidationFailed[] =
    "Project validation failed please see the Fernwick messages window for more information.";
inline constexpr char kUserCanceled[] = "User Canceled";
inline constexpr char kNotDeployed[] = "Deployment did not finish due to an error.";
inline constexpr char kNotDeployedSeeMessages[] =
    "Deployment did not finish due to an error. See the Fernwick Messages Window for details.";
inline constexpr char kNoPackage[] = "Make project pacakge did not finish due to an error."; // sic
inline constexpr char kNoPackageSeeMessages[] =
    "Make project pacakge did not finish due to an error. See the Fernwick Messages Window for details."; // sic

// Outcomes in the messages window
inline constexpr char kPackageSucceeded[] = "SUCCESS - Make project package completed successfully.";
inline constexpr char kDeploySucceeded[] = "SUCCESS - Project successfully sent to device.";
/// Also for a package that the pipe could not make.
inline constexpr char kDeployWithWarnings[] =
    "SUCCESS with Warnings - This project was deployed, but may not function as expected.";

// The runtime
inline constexpr char kLoadTamarik[] = "Load Tamarik";
inline constexpr char kCreatingConnection[] = "Attempting to create connection...";

} // namespace fernwick::deploy_texts
