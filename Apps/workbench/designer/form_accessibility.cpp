#include "Apps/workbench/designer/form_accessibility.h"
#include "Apps/workbench/designer/form_canvas.h"
#include <QAccessibleWidget>
#include <QPointer>

namespace workbench {

namespace {

QAccessible::Role roleOf(ControlKind kind) {
    switch (kind) {
    case ControlKind::Label: return QAccessible::StaticText;
    case ControlKind::TextBox: return QAccessible::EditableText;
    case ControlKind::Button: return QAccessible::Button;
    case ControlKind::CheckBox: return QAccessible::CheckBox;
    case ControlKind::OptionButton: return QAccessible::RadioButton;
    case ControlKind::Frame: return QAccessible::Grouping;
    case ControlKind::ListBox:
    case ControlKind::ColumnList: return QAccessible::List;
    case ControlKind::ComboBox: return QAccessible::ComboBox;
    case ControlKind::Grid: return QAccessible::Table;
    case ControlKind::Tree: return QAccessible::Tree;
    case ControlKind::TabStrip:
    case ControlKind::TabbedBox: return QAccessible::PageTabList;
    case ControlKind::HScrollBar:
    case ControlKind::VScrollBar: return QAccessible::ScrollBar;
    case ControlKind::Slider: return QAccessible::Slider;
    case ControlKind::ProgressBar: return QAccessible::ProgressBar;
    case ControlKind::ToolBar: return QAccessible::ToolBar;
    case ControlKind::StatusBar: return QAccessible::StatusBar;
    default: return QAccessible::Graphic;
    }
}

/// One control. It is looked up each time, as the form may have been read again.
class AccessibleControl final : public QAccessibleInterface {
public:
    AccessibleControl(FormCanvas& canvas, vbide::Ref<vbide::VBControl> control)
        : canvas_(&canvas), control_(std::move(control)) {}

    bool isValid() const override { return drawn() != nullptr; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(canvas_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text what) const override {
        const auto* shown = drawn();
        if (!shown) return {};
        switch (what) {
        case QAccessible::Name: return shown->name;
        case QAccessible::Description: return shown->className;
        case QAccessible::Value: return shown->look.text;
        default: return {};
        }
    }
    QRect rect() const override {
        const auto* shown = drawn();
        if (!shown) return {};
        const auto place = canvas_->onCanvas(shown->place.normalized()).toRect();
        return {canvas_->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::Role role() const override {
        const auto* shown = drawn();
        return shown ? roleOf(shown->look.kind) : QAccessible::NoRole;
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.selectable = state.focusable = true;
        state.selected = canvas_ && canvas_->view().selected() == control_;
        state.focused = state.selected && canvas_->hasFocus();
        return state;
    }

private:
    const DrawnControl* drawn() const { return canvas_ ? canvas_->view().picture().find(control_) : nullptr; }

    QPointer<FormCanvas> canvas_;
    vbide::Ref<vbide::VBControl> control_;
};

class AccessibleForm final : public QAccessibleWidget {
public:
    explicit AccessibleForm(FormCanvas& canvas) : QAccessibleWidget(&canvas, QAccessible::Canvas), canvas_(canvas) {}
    ~AccessibleForm() override { forget(); }

    int childCount() const override { return int(canvas_.view().picture().controls.size()); }
    QAccessibleInterface* child(int index) const override {
        list();
        return index >= 0 && index < int(ids_.size()) ? QAccessible::accessibleInterface(ids_[std::size_t(index)])
                                                      : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (int i = 0; i < childCount(); ++i)
            if (this->child(i) == child) return i;
        return -1;
    }
    QAccessibleInterface* focusChild() const override {
        for (int i = 0; i < childCount(); ++i)
            if (child(i)->state().focused) return child(i);
        return nullptr;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = childCount() - 1; i >= 0; --i) // the topmost is the last
            if (child(i)->rect().contains(x, y)) return child(i);
        return nullptr;
    }

private:
    /// Keeps the interfaces as long as the form has the same controls.
    void list() const {
        std::vector<vbide::Ref<vbide::VBControl>> controls;
        for (const auto& drawn : canvas_.view().picture().controls) controls.push_back(drawn.control);
        if (controls == controls_) return;
        forget();
        controls_ = controls;
        for (const auto& control : controls_)
            ids_.push_back(QAccessible::registerAccessibleInterface(new AccessibleControl(canvas_, control)));
    }
    void forget() const {
        for (const auto id : ids_) QAccessible::deleteAccessibleInterface(id);
        ids_.clear();
        controls_.clear();
    }

    FormCanvas& canvas_;
    mutable std::vector<vbide::Ref<vbide::VBControl>> controls_;
    mutable std::vector<QAccessible::Id> ids_;
};

QAccessibleInterface* accessibleForm(const QString&, QObject* object) {
    auto* const canvas = dynamic_cast<FormCanvas*>(object);
    return canvas ? new AccessibleForm(*canvas) : nullptr;
}

} // namespace

void exposeDesigners() { QAccessible::installFactory(accessibleForm); }

} // namespace workbench
