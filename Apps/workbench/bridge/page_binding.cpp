#include "Apps/workbench/bridge/page_binding.h"
#include "Apps/workbench/bridge/drawn_form.h"
#include <QGridLayout>

namespace workbench {

namespace {

/// Ends with the page's widget: the page may be removed while one of its handlers runs.
class PageBinding final : public QObject {
public:
    PageBinding(fernwick::Form& page, QWidget& widget, const Binding& dialog)
        : QObject(&widget), binding_(dialog.failed()) {
        bindControls(page, widget, binding_);
        binding_.show(page.Visible, [&widget](bool visible) { widget.setVisible(visible); });
    }

private:
    Binding binding_;
};

void keepSize(QWidget& page) {
    auto policy = page.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    page.setSizePolicy(policy);
}

void showPages(const fernwick::PagePlace& control, QWidget& widget, const Binding& binding) {
    for (auto* old : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        old->hide();
        old->deleteLater();
    }
    for (const auto& page : control.Pages()) {
        auto* const drawn = drawnForm(*page, &widget);
        drawn->setObjectName(page->typeName());
        keepSize(*drawn);
        static_cast<QGridLayout*>(widget.layout())->addWidget(drawn, 0, 0);
        new PageBinding(*page, *drawn, binding); // owned by the widget
    }
}

} // namespace

void bindPagePlace(fernwick::PagePlace& control, QWidget& widget, Binding& binding) {
    delete widget.layout();
    auto* const layout = new QGridLayout(&widget);
    layout->setContentsMargins({});
    const auto show = [&] { showPages(control, widget, binding); };
    show();
    binding.keep(control.changed.connect(show));
}

} // namespace workbench
