#include "Apps/workbench/messages/message_copy.h"
#include "Apps/workbench/base/text.h"

namespace workbench {

namespace {

using Grid = fernwick::MessageGrid;

constexpr std::array kCopiedColumns{Grid::TitleColumn, Grid::LineColumn, Grid::ErrorColumn, Grid::MessageColumn};

QString tableRow(const char* cell, const std::function<QString(Grid::Column)>& textOf) {
    QString row = "<tr>";
    for (const auto column : kCopiedColumns) {
        const auto lines = textOf(column).toHtmlEscaped().replace("\r\n", "<br>").replace('\n', "<br>");
        row += QString("<%1>%2</%1>").arg(cell, lines);
    }
    return row + "</tr>\n";
}

} // namespace

std::unique_ptr<QMimeData> copyOf(const fernwick::udocCompileMsgs& document, const std::vector<std::int32_t>& rows) {
    QString lines;
    QString table =
        "<table>\n" + tableRow("th", [](Grid::Column column) { return QString(Grid::design(column).header); });
    for (const auto number : rows) {
        lines += qt(document.copyText(number)) + "\n";
        table += tableRow("td", [&](Grid::Column column) { return qt(document.message(number).cells[column]); });
    }
    auto copy = std::make_unique<QMimeData>();
    copy->setText(lines);
    copy->setHtml(table + "</table>\n");
    return copy;
}

} // namespace workbench
