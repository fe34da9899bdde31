#include "Apps/workbench/designer/toolbox.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/drawing/control_drawing.h"
#include <QPainter>
#include <array>

namespace workbench {

namespace {

constexpr auto kPointer = "Pointer";
constexpr int kToolSize = 20, kOval = 2;

/// In the order of the language's own toolbox.
constexpr std::array kOwnTools{
    "VB.PictureBox",   "VB.Label",      "VB.TextBox",     "VB.Frame",      "VB.CommandButton", "VB.CheckBox",
    "VB.OptionButton", "VB.ComboBox",   "VB.ListBox",     "VB.HScrollBar", "VB.VScrollBar",    "VB.Timer",
    "VB.DriveListBox", "VB.DirListBox", "VB.FileListBox", "VB.Shape",      "VB.Line",          "VB.Image"};

QString titleOfTool(const std::string& progId) { return qt(progId.substr(progId.find('.') + 1)); }

/// Draws a small control of the kind, as on a form.
QIcon iconOfTool(const std::string& progId) {
    DrawnControl control;
    control.className = titleOfTool(progId);
    auto& look = control.look;
    look.kind = kindOfControl(progId);
    look.back = look.kind == ControlKind::Button       ? QColor("#d4d0c8")
                : look.kind == ControlKind::PictureBox ? QColor("#8fc1e8")
                                                       : QColor(Qt::white);
    look.border = look.kind == ControlKind::Button  ? ControlBorder::Raised
                  : look.kind == ControlKind::Image ? ControlBorder::None
                                                    : ControlBorder::Single;
    look.font.setPixelSize(11);
    look.text = look.kind == ControlKind::Label ? "A" : look.kind == ControlKind::TextBox ? "ab" : "";
    look.mnemonic = false;
    look.alignment = Qt::AlignHCenter;
    look.value = 1;
    look.shape = kOval;
    look.brush = Qt::SolidPattern;
    look.rows = look.columns = 2;
    look.fixedRows = 1;
    look.fill = QColor("#9a9a9a");
    if (look.kind == ControlKind::Line) look.fore = QColor(Qt::gray); // visible on light and dark
    look.items = QStringList{"-", "-"};
    const bool down = look.kind == ControlKind::VScrollBar, across = look.kind == ControlKind::HScrollBar;
    control.place = QRectF(down ? 5 : 1, across ? 5 : 2, down ? 10 : 18, across ? 10 : 16);
    control.clip = QRectF(0, 0, kToolSize, kToolSize);
    QPixmap picture(kToolSize, kToolSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawControl(painter, control);
    return picture;
}

/// An arrow that is visible on light and dark.
QIcon pointerIcon() {
    QPixmap picture(kToolSize, kToolSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::gray);
    painter.drawPolygon(QPolygonF{{6, 3}, {6, 15}, {9, 12.5}, {11, 17}, {13, 16}, {11, 11.5}, {15, 11.5}});
    return picture;
}

} // namespace

Toolbox::Toolbox(std::function<void(const std::string&)> add) {
    setObjectName("toolbox");
    setAccessibleName("Toolbox");
    setIconSize({kToolSize, kToolSize});
    setUniformItemSizes(true);
    offered_ = {kPointer}; // differs from an empty list, so that offer() fills the toolbox
    offer({});
    connect(this, &QListWidget::itemActivated, this, [this, add](QListWidgetItem* item) {
        const auto chosen = text(item->data(Qt::UserRole).toString());
        putBack();
        if (!chosen.empty()) add(chosen);
    });
}

void Toolbox::offer(const std::vector<std::string>& more) {
    if (more == offered_) return;
    offered_ = more;
    clear();
    addItem(new QListWidgetItem(pointerIcon(), kPointer));
    const auto list = [this](const std::string& progId) {
        auto* const entry = new QListWidgetItem(iconOfTool(progId), titleOfTool(progId), this);
        entry->setData(Qt::UserRole, qt(progId));
        entry->setToolTip(qt(progId));
    };
    for (const auto* own : kOwnTools) list(own);
    for (const auto& other : more) list(other);
    putBack();
}

std::string Toolbox::tool() const { return currentItem() ? text(currentItem()->data(Qt::UserRole).toString()) : ""; }

void Toolbox::putBack() { setCurrentRow(0); }

} // namespace workbench
