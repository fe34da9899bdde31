#include "Apps/workbench/bridge/binder.h"
#include "Add-in/platform/file_icon.h"
#include "Add-in/platform/frame.h"
#include "Add-in/platform/text_box.h"
#include "Apps/workbench/base/pictures.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/bridge/grid_binding.h"
#include "Apps/workbench/bridge/icon_preview.h"
#include "Apps/workbench/bridge/list_binding.h"
#include "Apps/workbench/bridge/list_view_binding.h"
#include "Apps/workbench/bridge/moving_picture.h"
#include "Apps/workbench/bridge/page_binding.h"
#include "Apps/workbench/bridge/tree_binding.h"
#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <array>

namespace workbench {

namespace {

using namespace fernwick;

/// Qt's own findChildren needs Q_OBJECT to tell a class from its base.
template <class W>
std::vector<W*> childrenOf(const QWidget& window) {
    std::vector<W*> found;
    for (auto* child : window.findChildren<QWidget*>())
        if (auto* own = dynamic_cast<W*>(child)) found.push_back(own);
    return found;
}

void bindButton(CommandButton& control, QPushButton& widget, Binding& binding) {
    widget.setAutoDefault(false);
    widget.setDefault(control.Default);
    binding.show(control.Caption, [&widget](const std::string& caption) { widget.setText(qt(caption)); });
    QObject::connect(&widget, &QPushButton::clicked, &widget, [&] { binding.act([&] { control.press(); }); });
}

void bindCheckBox(CheckBox& control, QCheckBox& widget, Binding& binding) {
    binding.show(control.Caption, [&widget](const std::string& caption) { widget.setText(qt(caption)); });
    binding.show(control.Value, [&widget](int value) {
        const QSignalBlocker ours(widget);
        constexpr std::array kStates{Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
        widget.setCheckState(kStates.at(std::size_t(value)));
    });
    QObject::connect(&widget, &QCheckBox::toggled, &widget,
                     [&](bool ticked) { binding.act([&] { control.Value(ticked ? 1 : 0); }); });
}

/// Makes a label look and react like a link.
class ClickedLabel final : public QObject {
public:
    ClickedLabel(QLabel& widget, std::function<void()> clicked) : QObject(&widget), clicked_(std::move(clicked)) {
        widget.installEventFilter(this);
        widget.setCursor(Qt::PointingHandCursor);
        widget.setForegroundRole(QPalette::Link);
    }

private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease) clicked_();
        return false;
    }
    std::function<void()> clicked_;
};

void bindLabel(fernwick::Label& control, QLabel& widget, Binding& binding) {
    if (control.Click.hasHandlers()) new ClickedLabel(widget, [&] { binding.act([&] { control.Click.raise(); }); });
    widget.setTextFormat(Qt::PlainText);
    binding.show(control.Caption, [&widget](const std::string& caption) { widget.setText(qt(caption)); });
}

/// Draws at once, as the work in progress does not return to Qt's loop.
void bindProgressBar(ProgressBar& control, QProgressBar& widget, Binding& binding) {
    const auto draw = [&control, &widget](float) {
        constexpr int kSteps = 1000;
        widget.setRange(0, kSteps);
        widget.setValue(int(control.percent() / 100 * kSteps));
        widget.repaint();
    };
    widget.setTextVisible(false);
    binding.show(control.Min, draw);
    binding.show(control.Max, draw);
    binding.show(control.Value, draw);
}

void bindStatusBar(StatusBar& control, QLabel& widget, Binding& binding) {
    widget.setTextFormat(Qt::PlainText);
    const auto draw = [&widget] {
        widget.repaint();
        for (auto* moving : childrenOf<MovingPicture>(*widget.window())) moving->drawDue();
    };
    binding.show(control.SimpleText, [&widget, draw](const std::string& text) {
        widget.setText(qt(text));
        draw();
    });
    binding.keep(control.Refreshed.connect(draw));
}

void bindPicture(PictureBox& control, QLabel& widget, Binding& binding) {
    binding.show(control.Picture, [&widget](const std::string& name) { widget.setPixmap(pictureNamed(name, widget)); });
}

void bindAnimation(Animation& control, MovingPicture& widget, Binding& binding) {
    binding.show(control.FileName, [&widget](const std::string& path) { widget.open(qt(path)); });
    binding.show(control.Playing, [&widget](int times) { widget.play(times); });
}

void bindTextBox(TextBox& control, QLineEdit& widget, Binding& binding) {
    widget.setReadOnly(control.Locked);
    binding.show(control.Text, [&widget](const std::string& shown) {
        if (widget.text() != qt(shown)) widget.setText(qt(shown)); // setting it moves the cursor
    });
    QObject::connect(&widget, &QLineEdit::textEdited, &widget,
                     [&](const QString& typed) { binding.act([&] { control.Text(text(typed)); }); });
}

/// A hidden frame keeps its place, so that a window keeps its size while frames replace each other.
void bindFrame(Frame&, QWidget& widget, Binding&) {
    auto policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

void bindFileIcon(FileIcon& control, QLabel& widget, Binding& binding) {
    binding.show(control.FileName,
                 [&widget](const std::string& path) { widget.setPixmap(iconPreview(qt(path), widget)); });
}

template <class C, class W, void (*bindKind)(C&, W&, Binding&)>
bool tryBind(Control& control, QWidget& widget, Binding& binding) {
    auto* const own = dynamic_cast<C*>(&control);
    if (!own) return false;
    auto* const drawn = dynamic_cast<W*>(&widget);
    if (!drawn) throw basic::RuntimeError(basic::kTypeMismatch, "Widget '" + control.Name + "' is of the wrong kind");
    bindKind(*own, *drawn, binding);
    return true;
}

/// One row for each kind of control.
constexpr std::array kKinds{
    &tryBind<CommandButton, QPushButton, bindButton>,
    &tryBind<CheckBox, QCheckBox, bindCheckBox>,
    &tryBind<fernwick::Label, QLabel, bindLabel>,
    &tryBind<ProgressBar, QProgressBar, bindProgressBar>,
    &tryBind<StatusBar, QLabel, bindStatusBar>,
    &tryBind<PictureBox, QLabel, bindPicture>,
    &tryBind<Animation, MovingPicture, bindAnimation>,
    &tryBind<ComboBox, QComboBox, bindComboBox>,
    &tryBind<ListBox, QListWidget, bindListBox>,
    &tryBind<Grid, QTreeWidget, bindGrid>,
    &tryBind<TabStrip, QTabBar, bindTabStrip>,
    &tryBind<TextBox, QLineEdit, bindTextBox>,
    &tryBind<Frame, QWidget, bindFrame>,
    &tryBind<TreeView, QTreeWidget, bindTreeView>,
    &tryBind<ListView, QTreeWidget, bindListView>,
    &tryBind<PagePlace, QWidget, bindPagePlace>,
    &tryBind<FileIcon, QLabel, bindFileIcon>,
};

} // namespace

void bind(Control& control, QWidget& widget, Binding& binding) {
    bool known = false;
    for (const auto& kind : kKinds) known = known || kind(control, widget, binding);
    if (!known) throw basic::RuntimeError(basic::kTypeMismatch, "Control '" + control.Name + "' is of an unknown kind");
    binding.show(control.Visible, [&widget](bool visible) { widget.setVisible(visible); });
    binding.show(control.Enabled, [&widget](bool enabled) { widget.setEnabled(enabled); });
    binding.show(control.ToolTipText, [&widget](const std::string& tip) { widget.setToolTip(qt(tip)); });
}

void bindControls(Form& form, QWidget& window, Binding& binding) {
    for (auto* control : form.Controls()) {
        auto* const widget = window.findChild<QWidget*>(qt(control->Name));
        if (!widget) throw basic::RuntimeError(basic::kControlNotFound, "Control '" + control->Name + "' not found");
        bind(*control, *widget, binding);
    }
}

} // namespace workbench
