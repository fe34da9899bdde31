#include "Apps/workbench/properties/value_choosers.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/colour_popup.h"
#include "Apps/workbench/properties/font_choice.h"
#include "Apps/workbench/properties/form_colours.h"
#include "Apps/workbench/properties/lines_popup.h"
#include "Apps/workbench/properties/picture_choice.h"

namespace workbench {

namespace {

QRect cellOf(const QTableView& table, const QModelIndex& index) {
    const auto cell = table.visualRect(index);
    return {table.viewport()->mapTo(&table, cell.topLeft()), cell.size()};
}

/// The row may show another property when the window closes: that of another object, or none.
using Row = QPersistentModelIndex;

void chooseColour(QTableView& table, PropertyRows& rows, const Row& row) {
    const auto now = formColourOf(row.data(Qt::EditRole).toString()).value_or(-1);
    auto* const popup = new ColourPopup(&table, now, [&rows, row](std::int32_t colour) {
        if (row.isValid()) rows.type(row.row(), formColourText(colour));
    });
    popup->showAt(cellOf(table, row));
}

PropertyChange toItems(const QString& lines) {
    std::vector<std::string> items;
    if (!lines.isEmpty())
        for (const auto& line : lines.split('\n')) items.push_back(text(line));
    if (!items.empty() && items.back().empty()) items.pop_back(); // after the last line end
    return [items](const auto& property) { host::setItems(property, items); };
}

PropertyChange toLines(QString lines) {
    return [value = text(lines.replace('\n', "\r\n"))](const auto& property) { property->Value(value); };
}

QString linesOf(const PropertyRows& rows, int row) {
    const auto& property = rows.property(row);
    if (rows.chooser(row) == Chooser::Lines) return qt(fernwick::asText(property->Value())).remove('\r');
    QStringList items;
    for (const auto& item : host::itemsOf(property)) items << qt(item);
    return items.join('\n');
}

void editLines(QTableView& table, PropertyRows& rows, const Row& row) {
    const bool isText = rows.chooser(row.row()) == Chooser::Lines;
    auto* const popup = new LinesPopup(&table, rows.name(row.row()), linesOf(rows, row.row()),
                                       [&rows, row, isText](const QString& lines) {
                                           if (!row.isValid()) return;
                                           rows.change(row.row(), isText ? toLines(lines) : toItems(lines));
                                       });
    popup->showAt(cellOf(table, row));
}

void chooseFont(QTableView& table, PropertyRows& rows, const Row& row) {
    const auto changes = askForFont(rows.property(row.row())->ObjectValue(), &table);
    if (!changes.empty() && row.isValid()) rows.change(row.row(), toFont(changes));
}

void choosePicture(QTableView& table, PropertyRows& rows, const Row& row) {
    const auto image = askForPicture(rows.name(row.row()), &table);
    if (!image || !row.isValid()) return;
    rows.change(row.row(), [&image](const auto& property) { host::setImage(property, *image); });
}

} // namespace

void chooseValue(QTableView& table, PropertyRows& rows, int row) {
    const Row cell(rows.index(row, PropertyRows::kValueColumn));
    switch (rows.chooser(row)) {
    case Chooser::Colour: return chooseColour(table, rows, cell);
    case Chooser::Font: return chooseFont(table, rows, cell);
    case Chooser::Picture: return choosePicture(table, rows, cell);
    case Chooser::Items:
    case Chooser::Lines: return editLines(table, rows, cell);
    case Chooser::None: break;
    }
}

bool removePicture(PropertyRows& rows, int row) {
    if (rows.chooser(row) != Chooser::Picture) return false;
    return rows.change(row, [](const auto& property) { host::setImage(property, {}); });
}

} // namespace workbench
