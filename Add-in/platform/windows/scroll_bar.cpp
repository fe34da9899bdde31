#include "Add-in/platform/windows/scroll_bar.h"
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

namespace fernwick {

namespace {

constexpr int kLowest = std::numeric_limits<std::int16_t>::min();
constexpr int kHighest = std::numeric_limits<std::int16_t>::max();

/// Rounds halves to even.
int rounded(double value, int lowest) {
    return int(std::clamp(std::nearbyint(value), double(lowest), double(kHighest)));
}

} // namespace

ScrollBar::ScrollBar(Form* form, std::string name, const ControlPlace& place, int value)
    : PlacedControl(form, std::move(name), place), value_(value) {
    Visible.design(false);
}

void ScrollBar::Value(int value) {
    if (set(inside(value))) Change.raise();
}

void ScrollBar::bounds(double min, double max) {
    const int low = rounded(min, kLowest), high = rounded(max, kLowest);
    if (low == min_ && high == max_) return;
    min_ = low;
    max_ = high;
    const int now = inside(value_);
    if (now != value_) return Value(now);
    changed.raise();
}

void ScrollBar::steps(double small, double large) {
    const int arrow = rounded(small, 1), page = rounded(large, 1);
    if (arrow == smallChange_ && page == largeChange_) return;
    smallChange_ = arrow;
    largeChange_ = page;
    changed.raise();
}

void ScrollBar::follow(int value) { set(value); }

void ScrollBar::drag(int value) {
    if (!dragFrom_) dragFrom_ = value_;
    if (set(inside(value))) Scroll.raise();
}

void ScrollBar::release() {
    const auto from = std::exchange(dragFrom_, std::nullopt);
    if (from && *from != value_) Change.raise();
}

/// The lower bound may be the greater one.
int ScrollBar::inside(int value) const { return std::clamp(value, std::min(min_, max_), std::max(min_, max_)); }

bool ScrollBar::set(int value) {
    if (value == value_) return false;
    value_ = value;
    changed.raise();
    return true;
}

} // namespace fernwick
