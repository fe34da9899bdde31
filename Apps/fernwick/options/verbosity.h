#pragma once

namespace cli {

enum class Verbosity { Quiet, Normal, Verbose };

} // namespace cli
