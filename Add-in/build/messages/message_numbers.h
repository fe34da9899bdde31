#pragma once
// Numbers of the messages that the add-in itself issues. They are stored in projects, identify help pages and select
// what a double-click does, so a number is never reused. build_messages.cpp describes them.
#include <cstdint>

namespace fernwick::message_numbers {

inline constexpr std::int32_t kToolsMissing = 2999;
inline constexpr std::int32_t kReservedWord = 4097;
/// Opens the compiler's page of the settings.
inline constexpr std::int32_t kComponentNotSupported = 4119;
/// Starts the Font Converter.
inline constexpr std::int32_t kFontMissing = 8193;
inline constexpr std::int32_t kControlEventNotSupported = 8198;
inline constexpr std::int32_t kFormEventNotSupported = 8199;
inline constexpr std::int32_t kScaleModeNotPixels = 8200;
inline constexpr std::int32_t kStartUpPositionManual = 8201;
inline constexpr std::int32_t kFormPicture = 8202;
inline constexpr std::int32_t kReferenceMissing = 8205;
inline constexpr std::int32_t kBorderStyle = 8206;
/// Opens the help about pictures.
inline constexpr std::int32_t kPictureHelp = 8208;
inline constexpr std::int32_t kFilesNotSaved = 12289;

} // namespace fernwick::message_numbers
