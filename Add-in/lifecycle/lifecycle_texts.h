#pragma once
// Texts shown while projects are set up, replaced and removed.

namespace fernwick::lifecycle_texts {

inline constexpr char kTitle[] = "Fernwick";
/// Preceded by the device's key.
inline constexpr char kDeviceNotInstalled[] = " support is not installed or registered. Please select a valid device.";
inline constexpr char kSaveBeforeManager[] = "Save project before opening Fernwick project manager?";
inline constexpr char kManagerWillNotOpen[] = "Project failed to save, Fernwick project manager will not open.";

inline constexpr char kInvalidState[] = "The Fernwick project manager is in an invalid state please contact support.";
inline constexpr char kProjectNotFound[] = "Project file was not found. It may have been moved or deleted.";
inline constexpr char kProjectFilter[] = "Visual Basic Project (*.vbp)|*.vbp|Visual Basic Project Group (*.vbg)|*.vbg";
inline constexpr char kNotAProjectTitle[] = "Non Project File Selected";
inline constexpr char kNotAProject[] = "Please coose a Visual Basic project file."; // sic

/// Followed by the support address.
inline constexpr char kSampleError[] = "There was an error in the samples menu, please contact support at ";
inline constexpr char kSaveBeforeSample[] = "Save the current project before opening another project?";
inline constexpr char kSampleWillNotOpen[] = "There was an error saving the project, the sample cannot be opened.";

} // namespace fernwick::lifecycle_texts
