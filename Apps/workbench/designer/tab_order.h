#pragma once
// Numbers the controls of a form in the order of the Tab key, by clicks.
#include "Apps/workbench/designer/form_picture.h"
#include "Apps/workbench/properties/design_history.h"
#include <QPainter>

namespace workbench {

class TabOrder {
public:
    using Control = vbide::Ref<vbide::VBControl>;

    explicit TabOrder(const FormPicture& picture) { follow(picture); }

    /// Called after the form was read again.
    void follow(const FormPicture& picture);
    /// Gives a control the next number; the first click gives 0. The others keep their order. Returns the new numbers of
    /// those that change.
    std::vector<std::pair<Control, DesignChange>> click(const Control& control);
    /// Draws the number of each control at its corner. The painter's origin is that of the form's inner rectangle.
    void paint(QPainter& painter, const FormPicture& picture) const;

private:
    bool isClicked(const Control& control) const;

    /// The controls that have a number, in their order.
    std::vector<Control> order_;
    std::vector<Control> clicked_;
};

} // namespace workbench
