#pragma once
// Texts shown while projects are set up, replaced and removed.

namespace fernwick::lifecycle_texts {

inline constexpr char kTitle[] = "Fernwick";
/// Preceded by the device's key.
inline constexpr char kDeviceNotInstalled[] = " support is not installed or registered. Please select a valid device.";
inline constexpr char kSaveBeforeManager[] = "Save project before opening Fernwick project manager?";
inline constexpr char kManagerWillNotOpen[] = "Project failed to save, Fernwick project manager will not open.";

/// Followed by the support address.
inline constexpr char kSampleError[] = "There was an error in the samples menu, please contact support at ";
inline constexpr char kSaveBeforeSample[] = "Save the current project before opening another project?";
inline constexpr char kSampleWillNotOpen[] = "There was an error saving the project, the sample cannot be opened.";

} // namespace fernwick::lifecycle_texts
