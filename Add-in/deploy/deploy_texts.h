#pragma once
// What users read while a project or the runtime goes to a device.
#include "Add-in/build/messages/build_texts.h"

namespace fernwick::deploy_texts {

inline constexpr char kTitle[] = "Fernwick";
/// Of boxes that say nothing above their text.
inline constexpr char kNoTitle[] = "";

// Before a project is sent
inline constexpr char kNotCurrent[] = "The compiled file is not current. Would you like to compile?";
inline constexpr char kStillDeploy[] = "This project has compile errors. Would you still like to deploy?";

// While it is sent; the project's name stands in the captions' middle
inline constexpr char kCreating[] = "Creating ";
inline constexpr char kDevicePackage[] = " Device Package...";
inline constexpr char kUploading[] = "Uploading ";
inline constexpr char kUploadingEnd[] = "...";
inline constexpr char kConnectingPipe[] = "Attempting to pipe create connection...";
inline constexpr char kGatheringList[] = "Gathering Project List...";
inline constexpr char kScanningDependencies[] = "Scanning Project for Dependencies...";
inline constexpr char kInvalidDependencies[] = "One or more of the specified dependency files are invalid\r\n"
                                               "Would you like to edit the project dependencies?";
inline constexpr char kCreateComplete[] = "Create Complete";
inline constexpr char kUploadComplete[] = "Upload Complete";
inline constexpr char kPackageMade[] =
    "The project package was successfully created and saved to the specified location.";

// What belongs to it; the path follows on a line of its own
inline constexpr char kNoProjectFolder[] = "ERROR - Could not find folder for project path.";
inline constexpr char kMissingDependency[] = "ERROR: Missing Dependency File, would you like to continue?";
inline constexpr char kMissingFont[] = "ERROR: Missing Font File, would you like to continue?";

// What went wrong
/// Followed by a ProgID.
inline constexpr char kNoPipe[] = "ERROR - Could not create ";
inline constexpr char kContactSupport[] = ". Please contact Quinloft technical support.";
/// Followed by source, number and description.
inline constexpr char kErrorIn[] = "Error in ";
/// Followed by a pipe's message and number.
inline constexpr char kPipeError[] = "ERROR - ";
inline constexpr char kMissingFiles[] = "Missing executable files, please compile project.";
inline constexpr char kMissingFilesBox[] = "ERROR - Missing executable files, please compile project.";
inline constexpr char kValidationFailedTitle[] = "Validation Failed";
inline constexpr char kValidationFailed[] =
    "Project validation failed please see the Fernwick messages window for more information.";
inline constexpr char kUserCanceled[] = "User Canceled";
inline constexpr char kNotDeployed[] = "Deployment did not finish due to an error.";
inline constexpr char kNotDeployedSeeMessages[] =
    "Deployment did not finish due to an error. See the Fernwick Messages Window for details.";
inline constexpr char kNoPackage[] = "Make project pacakge did not finish due to an error.";
inline constexpr char kNoPackageSeeMessages[] =
    "Make project pacakge did not finish due to an error. See the Fernwick Messages Window for details.";

// How the messages window sums it up
inline constexpr char kPackageSucceeded[] = "SUCCESS - Make project package completed successfully.";
inline constexpr char kDeploySucceeded[] = "SUCCESS - Project successfully sent to device.";
inline constexpr char kPackageWithWarnings[] =
    "SUCCESS with Warnings - This project can be deployed, but may not function as expected.";
/// Also that of a package that the pipe could not make.
inline constexpr char kDeployWithWarnings[] =
    "SUCCESS with Warnings - This project was deployed, but may not function as expected.";
inline constexpr char kErrorsToFix[] = "FAILED - Errors ($ERRORNUM$ items) must be fixed to deploy this project.";

// The runtime
inline constexpr char kLoadTamarik[] = "Load Tamarik";
inline constexpr char kCreatingConnection[] = "Attempting to create connection...";

} // namespace fernwick::deploy_texts
