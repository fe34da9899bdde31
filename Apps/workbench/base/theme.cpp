#include "Apps/workbench/base/theme.h"
#include <QApplication>
#include <QStyleFactory>
#include <array>

namespace workbench {

namespace {

constexpr int kHalfLight = 128;

QPalette paletteOf(const QColor& window, const QColor& base, const QColor& button, const QColor& text,
                   const QColor& highlight, const QColor& faint) {
    QPalette palette(text, button, button.lighter(120), button.darker(160), button.darker(125), text, Qt::white, base,
                     window);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Link, highlight.lighter(130));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

QPalette paletteOf(Theme theme) {
    return theme == Theme::Light ? paletteOf("#f0f0f0", "#ffffff", "#f4f4f4", "#1b1b1b", "#2a6fc9", "#8f8f8f")
                                 : paletteOf("#2b2d30", "#1e1f22", "#35373b", "#dcdde0", "#3574c4", "#7b7d82");
}

const CodeColours kLightCode{"#ffffff", "#1b1b1b", "#0033b3", "#2e7d32", "#a3381c", "#1750a8",
                             "#7a3e9d", "#f4f4f4", "#8f8f8f", "#f3f7fd", "#d03b3b", "#c98a00"};
const CodeColours kDarkCode{"#1e1f22", "#dcdde0", "#6ea8fe", "#7fb77e", "#e09a76", "#b5cea8",
                            "#c792ea", "#26282b", "#7b7d82", "#27292d", "#e5534b", "#d9a83a"};

} // namespace

Theme systemTheme() {
    return QApplication::palette().color(QPalette::Window).lightness() < kHalfLight ? Theme::Dark : Theme::Light;
}

void apply(Theme theme) {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(paletteOf(theme));
}

Theme currentTheme() { return systemTheme(); }

const CodeColours& codeColours(Theme theme) { return theme == Theme::Light ? kLightCode : kDarkCode; }

} // namespace workbench
