#pragma once

namespace cli {

/// The values of --color.
enum class ColorUse { Auto, Always, Never };

} // namespace cli
