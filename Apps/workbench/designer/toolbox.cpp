#include "Apps/workbench/designer/toolbox.h"
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/base/text.h"
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
    setWordWrap(true); // the titles of groups
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    offer({});
    connect(this, &QListWidget::itemActivated, this, [this, add](QListWidgetItem* item) {
        const auto chosen = text(item->data(Qt::UserRole).toString());
        putBack();
        if (!chosen.empty()) add(chosen);
    });
}

void Toolbox::offer(const OfferedControls& offered) {
    if (offered_ == offered) return;
    offered_ = offered;
    clear();
    addItem(new QListWidgetItem(drawnIcon(kPointer), kPointer));
    const bool ofDevice = !offered.ofDevices.empty();
    addGroup("Device controls", offered.ofDevices, true);
    addGroup("Visual Basic controls", {kOwnTools.begin(), kOwnTools.end()}, !ofDevice);
    addGroup("Other controls", offered.ofLibraries, !ofDevice);
    addGroup("User controls", offered.ofProject, !ofDevice);
    putBack();
}

/// The title cannot be selected.
void Toolbox::addGroup(const QString& title, const std::vector<std::string>& classes, bool stays) {
    if (classes.empty()) return;
    auto* const head = new QListWidgetItem(stays ? title : title + " (removed by Fernwick)", this);
    head->setFlags(Qt::NoItemFlags);
    auto bold = font();
    bold.setBold(true);
    head->setFont(bold);
    if (!stays)
        head->setToolTip("These controls do not run on devices. Fernwick removes them from the forms of its projects.");
    for (const auto& progId : classes) {
        auto* const entry = new QListWidgetItem(iconOfControl(progId), titleOfTool(progId), this);
        entry->setData(Qt::UserRole, qt(progId));
        entry->setToolTip(qt(progId));
    }
}

std::string Toolbox::tool() const { return currentItem() ? text(currentItem()->data(Qt::UserRole).toString()) : ""; }

void Toolbox::putBack() { setCurrentRow(0); }

} // namespace workbench
