#include "Apps/workbench/properties/font_choice.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/property_reader.h"
#include <QFontDialog>
#include <QFontInfo>
#include <algorithm>

namespace workbench {

namespace {

/// With the family that takes the place of one that is not installed: the dialog lists the styles of no other.
QFont fontOf(const PropertyReader& read) {
    QFont font(read.text("Name"));
    font.setPointSizeF(std::max(1.0, read.real("Size")));
    font.setBold(read.flag("Bold"));
    font.setItalic(read.flag("Italic"));
    font.setUnderline(read.flag("Underline"));
    font.setStrikeOut(read.flag("Strikethrough"));
    font.setFamily(QFontInfo(font).family());
    return font;
}

std::vector<DesignChange> membersOf(const QFont& font) {
    return {{"Name", text(font.family())}, {"Size", font.pointSizeF()},     {"Bold", font.bold()},
            {"Italic", font.italic()},     {"Underline", font.underline()}, {"Strikethrough", font.strikeOut()}};
}

} // namespace

/// What the dialog shows at first is not the user's choice: it may be the nearest font that is installed.
std::vector<DesignChange> askForFont(const vbide::Ref<vbide::Properties>& members, QWidget* parent) {
    QFontDialog dialog(fontOf(PropertyReader(members)), parent);
    dialog.setWindowTitle("Font");
    const auto shown = membersOf(dialog.currentFont());
    if (dialog.exec() != QDialog::Accepted) return {};
    auto changes = membersOf(dialog.selectedFont());
    std::erase_if(changes, [&](const auto& change) {
        return std::any_of(shown.begin(), shown.end(), [&](const auto& one) {
            return one.property == change.property && one.value == change.value;
        });
    });
    return changes;
}

} // namespace workbench
