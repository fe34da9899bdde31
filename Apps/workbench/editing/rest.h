#pragma once

namespace workbench {

/// The pause in typing after which costly things are brought up to date.
inline constexpr int kMillisecondsOfRest = 300;

} // namespace workbench
