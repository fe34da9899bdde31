#include "Apps/workbench/properties/font_choice.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/property_reader.h"
#include <QFontDialog>
#include <algorithm>

namespace workbench {

namespace {

QFont fontOf(const PropertyReader& read) {
    QFont font(read.text("Name"));
    font.setPointSizeF(std::max(1.0, read.real("Size")));
    font.setBold(read.flag("Bold"));
    font.setItalic(read.flag("Italic"));
    font.setUnderline(read.flag("Underline"));
    font.setStrikeOut(read.flag("Strikethrough"));
    return font;
}

} // namespace

std::vector<DesignChange> askForFont(const vbide::Ref<vbide::Properties>& members, QWidget* parent) {
    bool accepted = false;
    const auto chosen = QFontDialog::getFont(&accepted, fontOf(PropertyReader(members)), parent, "Font");
    if (!accepted) return {};
    return {{"Name", text(chosen.family())}, {"Size", chosen.pointSizeF()},     {"Bold", chosen.bold()},
            {"Italic", chosen.italic()},     {"Underline", chosen.underline()}, {"Strikethrough", chosen.strikeOut()}};
}

} // namespace workbench
