#pragma once
// The appearance of one control, read from its properties.
#include "Apps/workbench/drawing/control_kinds.h"
#include "Apps/workbench/properties/property_reader.h"
#include <QLineF>
#include <QPixmap>
#include <QStringList>
#include <vector>

namespace workbench {

enum class ControlBorder { None, Single, Raised, Sunken };

struct ControlLook {
    ControlKind kind = ControlKind::Other;
    QString text; ///< caption or text
    QStringList items;
    QColor back, fore;
    QFont font;
    Qt::Alignment alignment = Qt::AlignLeft;
    ControlBorder border = ControlBorder::None;
    bool transparent = false, wrapped = false, mnemonic = true, enabled = true;
    int value = 0;         ///< 0, 1, 2: off, on, neither
    bool boxRight = false; ///< check and option: the box is to the right of the text
    bool arrow = true;     ///< combo: the list drops down
    bool checks = false;   ///< list: a box before each item
    bool barAcross = false, barDown = false;
    double thumb = 0; ///< scroll bars: from 0 to 1
    QPixmap picture;
    bool stretched = false, unreadable = false; ///< there is a picture, but it cannot be read
    // shapes and lines
    int shape = 0;
    Qt::PenStyle penStyle = Qt::SolidLine;
    int penWidth = 1;
    Qt::BrushStyle brush = Qt::NoBrush;
    QColor fill;
    // grids
    int rows = 0, columns = 0, fixedRows = 0, fixedColumns = 0;
    bool gridLines = true;
    // tabs, bars and lists with columns; `items` has their captions
    std::vector<double> widths;  ///< of columns and panels, in pixels; 0 shares the rest
    int current = 0;             ///< the tab that is shown
    int perRow = 0;              ///< tabs in a row; 0 for all
    double tabHeight = 0;        ///< in pixels; 0 for that of the font
    bool across = true;          ///< the direction of a slider, progress bar or pair of arrows
    std::vector<QString> absent; ///< names of controls on tabs that are not shown
};

ControlLook lookOf(const std::string& className, const PropertyReader& read);

} // namespace workbench
