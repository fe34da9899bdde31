#include "Components/QLPipe/base/progress.h"
#include <algorithm>

namespace qlpipe {

constexpr std::int32_t kWhole = 100;

void Progress::setStatus(std::string status) {
    if (status == status_) return;
    status_ = std::move(status);
    report();
}

void Progress::moved(std::int64_t bytes) {
    done_ += bytes;
    const auto percent = total_ > 0 ? std::int32_t(std::min(done_, total_) * kWhole / total_) : kWhole;
    if (percent == percent_) return;
    percent_ = percent;
    report();
}

void Progress::report() {
    if (sink_) sink_->SendProgress(status_, percent_);
}

} // namespace qlpipe
