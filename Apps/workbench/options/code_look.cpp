#include "Apps/workbench/options/code_look.h"
#include "Apps/workbench/options/declared_options.h"
#include <QFontDatabase>

namespace workbench {

ColourOption CodeColour::option(Theme theme) const {
    return {QString("colours/%1/%2").arg(theme == Theme::Light ? "light" : "dark", name), codeColours(theme).*part};
}

QFont codeFont(const QString& family, int points) {
    auto font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setFamily(family);
    font.setPointSize(points);
    return font;
}

CodeColours storedColours(Theme theme) {
    CodeColours colours;
    for (const auto& colour : kCodeColours) colours.*colour.part = colour.option(theme).stored();
    return colours;
}

CodeLook storedCodeLook(Theme theme) {
    return {codeFont(kCodeFont.stored(), kCodeFontSize.stored()), kTabWidth.stored(), storedColours(theme)};
}

} // namespace workbench
