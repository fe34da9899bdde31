#pragma once
#include <cstdint>

namespace tamarik {

/// Why a machine does not run at present.
enum class RunState : std::uint8_t { Running, Finished, StoppedByBudget, Failed, Waiting };

} // namespace tamarik
