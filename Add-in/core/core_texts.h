#pragma once
// Texts of this room.
#include <string_view>

namespace fernwick::texts {

inline constexpr std::string_view kFernwick = "Fernwick";
inline constexpr std::string_view kCrLf = "\r\n";

inline constexpr std::string_view kErrorReport = "An Error Has Occurred in {location} ({source})\r\n"
                                                 "Error: [{number}] {description}\r\n"
                                                 "LastDllError: {lastDllError}\r\n"
                                                 "Please contact Quinloft at {supportAddress}";

inline constexpr std::string_view kListTooLong = "The list has {count} entries, but at most {most} can be stored; the "
                                                 "stored list was not changed";

} // namespace fernwick::texts
