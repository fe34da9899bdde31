#pragma once

namespace workbench {

/// The same on every screen: the language measures forms and windows as if all had 96 dots per inch.
inline constexpr int kTwipsPerPixel = 15;

} // namespace workbench
