#pragma once
// What there is to draw of a form, read from its text once. Logical pixels, 15 twips each, whatever the screen.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/base/twips.h"
#include "Apps/workbench/designer/control_look.h"
#include <QMarginsF>
#include <QRectF>
#include <vector>

namespace workbench {

struct DrawnControl {
    vbide::Ref<vbide::VBControl> control;
    QString name, className;
    int tabIndex = 0;
    /// Its place on the inner rectangle of the form, and the part of it that its containers let through.
    QRectF place, clip;
    /// What its container's place is measured from, and pixels for one unit in it.
    QPointF origin;
    double unitX = 1, unitY = 1;
    ControlLook look;
    bool visible = true;
    /// The control that it lies in, -1 for the form.
    int container = -1;
};

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
    bool controlBox = true, minButton = true, maxButton = true, smallTitle = false;
    /// The menu bar; what does not show stands there too.
    std::vector<DrawnMenu> menus;
    /// From the back to the front, each behind the container that it lies in.
    std::vector<DrawnControl> controls;

    /// The frame with the menu bar.
    QMarginsF border() const;
    bool hasMenuBar() const;
    /// Null for one that is not drawn, such as a menu.
    const DrawnControl* find(const vbide::Ref<vbide::VBControl>& control) const;
    /// The control in front at a place on the inner rectangle, null for the form itself.
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
