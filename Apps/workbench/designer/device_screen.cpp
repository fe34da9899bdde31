#include "Apps/workbench/designer/device_screen.h"
#include "Apps/workbench/project/project_saving.h"
#include "Basic/conversions.h"
#include "Basic/runtime_error.h"

namespace workbench {

namespace {

constexpr auto kSection = "Quinloft Global";
constexpr double kEdgeWidth = 3, kCorner = 4;
const QColor kEdgeColour("#5b6b7b");

double stored(const vbide::VBProject& project, const char* key) {
    double pixels = 0;
    (void)basic::attempt([&] { pixels = basic::CLng(project.ReadProperty(kSection, key)); });
    return pixels;
}

} // namespace

QSizeF deviceScreenOf(const vbide::Ref<vbide::VBComponent>& component) {
    QSizeF screen;
    (void)basic::attempt([&] { // fails for a removed component
        const auto project = projectOf(component);
        screen = {stored(*project, "DefaultFormWidth"), stored(*project, "DefaultFormHeight")};
    });
    return screen.width() > 0 && screen.height() > 0 ? screen : QSizeF();
}

void paintDeviceScreen(QPainter& painter, const QRectF& screen) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kEdgeColour, kEdgeWidth));
    painter.setBrush(Qt::NoBrush);
    const double out = kDeviceEdge - kEdgeWidth / 2;
    painter.drawRoundedRect(screen.adjusted(-out, -out, out, out), kCorner, kCorner);
    painter.restore();
}

} // namespace workbench
