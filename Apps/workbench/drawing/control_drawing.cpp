#include "Apps/workbench/drawing/control_drawing.h"
#include "Apps/workbench/drawing/classic_edges.h"
#include "Apps/workbench/drawing/control_painters.h"

namespace workbench {

namespace {

constexpr double kDimmed = 0.4;

} // namespace

void drawControl(QPainter& painter, const DrawnControl& control) {
    painter.save();
    painter.setClipRect(control.clip, Qt::IntersectClip);
    if (!control.visible) painter.setOpacity(kDimmed);
    switch (control.look.kind) {
    case ControlKind::Label: drawLabel(painter, control); break;
    case ControlKind::TextBox: drawField(painter, control); break;
    case ControlKind::Button: drawButton(painter, control); break;
    case ControlKind::CheckBox:
    case ControlKind::OptionButton: drawChoice(painter, control); break;
    case ControlKind::Frame: drawFrame(painter, control); break;
    case ControlKind::ListBox: drawList(painter, control); break;
    case ControlKind::ComboBox: drawCombo(painter, control); break;
    case ControlKind::PictureBox:
    case ControlKind::Image: drawPicture(painter, control); break;
    case ControlKind::Shape: drawShape(painter, control); break;
    case ControlKind::Line: drawLine(painter, control); break;
    case ControlKind::HScrollBar: drawScrollBar(painter, control.place, true, control.look.thumb); break;
    case ControlKind::VScrollBar: drawScrollBar(painter, control.place, false, control.look.thumb); break;
    case ControlKind::Grid: drawGrid(painter, control); break;
    case ControlKind::TabStrip: drawTabs(painter, control); break;
    case ControlKind::TabbedBox: drawTabbedBox(painter, control); break;
    case ControlKind::ColumnList: drawColumns(painter, control); break;
    case ControlKind::Tree: drawTree(painter, control); break;
    case ControlKind::ToolBar: drawToolBar(painter, control); break;
    case ControlKind::StatusBar: drawStatusBar(painter, control); break;
    case ControlKind::ProgressBar: drawProgress(painter, control); break;
    case ControlKind::Slider: drawSlider(painter, control); break;
    case ControlKind::DateBox: drawDateBox(painter, control); break;
    case ControlKind::UpDown: drawUpDown(painter, control); break;
    case ControlKind::DataBar: drawDataBar(painter, control); break;
    case ControlKind::UserControl: drawUserControl(painter, control); break;
    case ControlKind::Menu: break;
    case ControlKind::Hidden: drawHidden(painter, control); break;
    case ControlKind::Other: drawOther(painter, control); break;
    }
    painter.restore();
}

} // namespace workbench
