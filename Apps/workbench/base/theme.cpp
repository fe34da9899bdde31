#include "Apps/workbench/base/theme.h"
#include "Apps/workbench/base/desktop_style.h"
#include <QApplication>
#include <array>

namespace workbench {

namespace {

constexpr int kHalfLight = 128;

QPalette paletteOf(const QColor& window, const QColor& base, const QColor& button, const QColor& text,
                   const QColor& highlight, const QColor& faint, const QColor& link, const QColor& quiet) {
    QPalette palette(text, button, button.lighter(120), button.darker(160), button.darker(125), text, Qt::white, base,
                     window);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Link, link);
    // a list without the focus shows its row, but not as the one that keys act on
    palette.setColor(QPalette::Inactive, QPalette::Highlight, quiet);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

QPalette paletteOf(Theme theme) {
    return theme == Theme::Light
               ? paletteOf("#f0f0f0", "#ffffff", "#f4f4f4", "#1b1b1b", "#2a6fc9", "#646464", "#1f5fb4", "#646a73")
               : paletteOf("#2b2d30", "#1e1f22", "#35373b", "#dcdde0", "#3574c4", "#a2a4a9", "#7fb3f5", "#4f535a");
}

const CodeColours kLightCode{"#ffffff", "#1b1b1b", "#0033b3", "#2e7d32", "#a3381c", "#1750a8", "#7a3e9d",
                             "#f4f4f4", "#646464", "#f3f7fd", "#c42b2b", "#8a5f00", "#cfe2fa"};
const CodeColours kDarkCode{"#1e1f22", "#dcdde0", "#6ea8fe", "#7fb77e", "#e09a76", "#b5cea8", "#c792ea",
                            "#26282b", "#a2a4a9", "#27292d", "#f4766e", "#d9a83a", "#2f4a73"};

} // namespace

Theme systemTheme() {
    return QApplication::palette().color(QPalette::Window).lightness() < kHalfLight ? Theme::Dark : Theme::Light;
}

void apply(Theme theme) {
    QApplication::setStyle(new DesktopStyle);
    QApplication::setPalette(paletteOf(theme));
}

Theme currentTheme() { return systemTheme(); }

QColor edgeColour(Theme theme) { return theme == Theme::Light ? "#767676" : "#8f9298"; }

const CodeColours& codeColours(Theme theme) { return theme == Theme::Light ? kLightCode : kDarkCode; }

} // namespace workbench
