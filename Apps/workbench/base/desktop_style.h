#pragma once
#include <QProxyStyle>

namespace workbench {

/// The Fusion style with edges and a focus that are visible in both themes.
class DesktopStyle final : public QProxyStyle {
public:
    DesktopStyle() : QProxyStyle("Fusion") {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace workbench
