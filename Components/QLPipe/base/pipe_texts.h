#pragma once
// The progress texts of a pipe.
namespace qlpipe::pipe_texts {

inline constexpr char kConnecting[] = "Connecting to {device}...";
inline constexpr char kSending[] = "Sending {file}...";
inline constexpr char kReading[] = "Reading {file}...";
inline constexpr char kPacking[] = "Packing {file}...";
inline constexpr char kFinishing[] = "Finishing...";

} // namespace qlpipe::pipe_texts
