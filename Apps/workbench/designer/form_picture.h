#pragma once
// The visible parts of a form, in logical pixels of 15 twips.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/base/twips.h"
#include "Apps/workbench/drawing/drawn_control.h"
#include <QMarginsF>
#include <QRectF>
#include <vector>

namespace workbench {

struct DrawnMenu {
    vbide::Ref<vbide::VBControl> control;
    QString caption;
    bool visible = true, enabled = true, checked = false;
    std::vector<DrawnMenu> items;
};

struct FormPicture {
    QSizeF inner;
    QMarginsF frame;
    QString caption;
    QColor back;
    QPixmap picture;
    /// Controls and form can be neither moved nor sized.
    bool isLocked = false;
    bool controlBox = true, minButton = true, maxButton = true, smallTitle = false;
    /// The menu bar, including invisible menus.
    std::vector<DrawnMenu> menus;
    /// From back to front, each after its container.
    std::vector<DrawnControl> controls;

    /// The frame with the menu bar.
    QMarginsF border() const;
    bool hasMenuBar() const;
    /// Null if the control is not drawn, such as a menu.
    const DrawnControl* find(const vbide::Ref<vbide::VBControl>& control) const;
    /// The topmost control at a place on the inner rectangle, null for the form itself.
    const DrawnControl* at(const QPointF& place) const;
    /// The innermost container at a place, null for the form itself.
    const DrawnControl* containerAt(const QPointF& place) const;
    /// The nearest control in a direction of the screen, null if there is none.
    const DrawnControl* beside(const DrawnControl& from, const QPointF& direction) const;
    /// Controls in the order of the Tab key.
    std::vector<const DrawnControl*> tabOrder() const;
};

/// The height of a menu bar.
inline constexpr int kMenuBarHeight = 19;

} // namespace workbench
