#pragma once
#include <QProxyStyle>

namespace workbench {

/// The Fusion style with edges and a focus that are visible in both themes.
class DesktopStyle final : public QProxyStyle {
public:
    DesktopStyle() : QProxyStyle("Fusion") {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    /// The picture of a selected row remains as it is: mixed with the row's colour it is hard to recognise.
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& picture, const QStyleOption* option) const override;
    /// Buttons of dialogs have no icons, as those of forms have none.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};

} // namespace workbench
