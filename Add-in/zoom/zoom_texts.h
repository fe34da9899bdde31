#pragma once

namespace fernwick::zoom_texts {

inline constexpr char kCaption[] = "Fernwick Zoom";
/// Identifies the tool window in the host, which remembers its place.
inline constexpr char kGuidPosition[] = "{DE645E8C-7810-416f-9F60-78A1E6CCF764}";

} // namespace fernwick::zoom_texts
