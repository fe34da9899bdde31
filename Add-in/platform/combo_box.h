#pragma once
#include "Add-in/platform/controls.h"

namespace fernwick {

/// A drop-down list, of which one row is chosen.
class ComboBox : public ListBox {
public:
    using ListBox::ListBox;
    /// The chosen row; "" for none.
    std::string Text() const { return ListIndex() < 0 ? std::string() : List(ListIndex()); }
};

} // namespace fernwick
