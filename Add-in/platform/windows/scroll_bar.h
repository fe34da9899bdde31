#pragma once
#include "Add-in/platform/windows/panel.h"
#include <optional>

namespace fernwick {

/// A scroll bar whose values have 16 bits. Hidden at first.
class ScrollBar : public PlacedControl {
public:
    ScrollBar(Form* form, std::string name, const ControlPlace& place, int value = 0);

    int Min() const { return min_; }
    int Max() const { return max_; }
    int SmallChange() const { return smallChange_; }
    int LargeChange() const { return largeChange_; }
    int Value() const { return value_; }
    /// Raises Change if the value changes. A value outside the bounds moves inside.
    void Value(int value);

    /// Rounds the bounds, and clamps them to 16 bits. A value outside moves inside and raises Change.
    void bounds(double min, double max);
    /// Rounds the steps of an arrow and of a click beside the thumb, and clamps them to 1 to 32767.
    void steps(double small, double large);
    /// Moves the thumb of a bar without an event, because what it scrolls has already moved.
    void follow(int value);

    // ---- for front ends ----
    /// The user drags the thumb, which raises Scroll.
    void drag(int value);
    /// The user releases the thumb: raises Change if it has moved.
    void release();
    /// Raised after any change of bounds, steps or value, before the bar's own events.
    Event<> changed;

    Event<> Change, Scroll;

private:
    int inside(int value) const;
    bool set(int value);

    int min_ = 0, max_ = 32767, smallChange_ = 1, largeChange_ = 1;
    int value_;
    /// The value at which the drag of the thumb began.
    std::optional<int> dragFrom_;
};

} // namespace fernwick
