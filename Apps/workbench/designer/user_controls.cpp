#include "Apps/workbench/designer/user_controls.h"
#include "Apps/workbench/designer/form_painter.h"
#include "Apps/workbench/designer/form_reader.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include <QApplication>
#include <QPainter>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kDeepest = 3, kLargest = 2048;

std::vector<vbide::Ref<vbide::VBComponent>> userControlsOf(vbide::VBComponent& component) {
    std::vector<vbide::Ref<vbide::VBComponent>> controls;
    (void)basic::attempt([&] {
        for (const auto& other : component.Collection()->items())
            if (other->Type() == vbide::vbext_ct_UserControl && other.shared().get() != &component)
                controls.push_back(other);
    });
    return controls;
}

} // namespace

void UserControls::read(ControlLook& look, const std::string& className) {
    if (depth_ >= kDeepest) return;
    const auto name = className.substr(className.find('.') + 1);
    for (const auto& control : userControlsOf(component_)) {
        if (!basic::equalNoCase(control->Name(), name)) continue;
        const auto [entry, isNew] = pictures_.try_emplace(name);
        if (isNew) entry->second = drawn(control);
        look.picture = entry->second;
        look.kind = ControlKind::UserControl;
    }
}

QPixmap UserControls::drawn(const vbide::Ref<vbide::VBComponent>& control) const {
    QPixmap picture;
    (void)basic::attempt([&] {
        const auto form = pictureOfForm(*control, depth_ + 1);
        const auto size = form.inner.toSize().boundedTo({kLargest, kLargest});
        const double scale = qApp->devicePixelRatio();
        picture = QPixmap((QSizeF(size) * scale).toSize());
        picture.setDevicePixelRatio(scale);
        picture.fill(form.back);
        QPainter painter(&picture);
        paintInner(painter, form);
    });
    return picture;
}

} // namespace workbench
