#include "Apps/workbench/designer/toolbox.h"
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/drawing/control_kinds.h"
#include <array>

namespace workbench {

namespace {

constexpr auto kPointer = "Pointer";
constexpr int kToolSize = 20;

/// In the order of the language's own toolbox.
constexpr std::array kOwnTools{
    "VB.PictureBox",   "VB.Label",      "VB.TextBox",     "VB.Frame",      "VB.CommandButton", "VB.CheckBox",
    "VB.OptionButton", "VB.ComboBox",   "VB.ListBox",     "VB.HScrollBar", "VB.VScrollBar",    "VB.Timer",
    "VB.DriveListBox", "VB.DirListBox", "VB.FileListBox", "VB.Shape",      "VB.Line",          "VB.Image"};

QString titleOfTool(const std::string& progId) { return qt(progId.substr(progId.find('.') + 1)); }

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
    addItem(new QListWidgetItem(drawnIcon(kPointer), kPointer));
    const auto list = [this](const std::string& progId) {
        auto* const entry = new QListWidgetItem(iconOfControl(progId), titleOfTool(progId), this);
        entry->setData(Qt::UserRole, qt(progId));
        entry->setToolTip(qt(progId));
    };
    for (const auto& other : more)
        if (isDeviceControl(other)) list(other);
    for (const auto* own : kOwnTools) list(own);
    for (const auto& other : more)
        if (!isDeviceControl(other)) list(other);
    putBack();
}

std::string Toolbox::tool() const { return currentItem() ? text(currentItem()->data(Qt::UserRole).toString()) : ""; }

void Toolbox::putBack() { setCurrentRow(0); }

} // namespace workbench
