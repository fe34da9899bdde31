#include "Host/system/clock.h"
#include <chrono>

namespace host {
namespace {

template <class SystemClock>
std::int64_t nanosecondsOf() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(SystemClock::now().time_since_epoch()).count();
}

} // namespace

std::int64_t Clock::Now() const { return nanosecondsOf<std::chrono::system_clock>(); }
std::int64_t Clock::Monotonic() const { return nanosecondsOf<std::chrono::steady_clock>(); }

} // namespace host
