#pragma once
// What users read while a pipe works.
namespace qlpipe::pipe_texts {

/// A device's name follows, then the dots.
inline constexpr char kConnecting[] = "Connecting to ";
/// A file's name follows, then the dots.
inline constexpr char kSending[] = "Sending ";
inline constexpr char kReading[] = "Reading ";
inline constexpr char kPacking[] = "Packing ";
inline constexpr char kDots[] = "...";
inline constexpr char kFinishing[] = "Finishing...";

} // namespace qlpipe::pipe_texts
