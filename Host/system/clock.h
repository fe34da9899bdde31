#pragma once
#include "Add-in/platform/clock.h"

namespace host {

/// The system's clocks.
class Clock : public fernwick::Clock {
public:
    std::int64_t Now() const override;
    std::int64_t Monotonic() const override;
};

} // namespace host
