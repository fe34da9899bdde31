#pragma once

namespace workbench {

/// The program's name, in the title bars of its window and its boxes.
inline constexpr auto kTitle = "Fernwick Workbench";

} // namespace workbench
