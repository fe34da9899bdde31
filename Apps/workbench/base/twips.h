#pragma once

namespace workbench {

/// On every screen: forms and windows of the language are measured as on one of 96 dots an inch.
inline constexpr int kTwipsPerPixel = 15;

} // namespace workbench
