#include "Apps/workbench/properties/property_descriptions.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/property_descriptions_table.h"
#include "Basic/case_folding.h"

namespace workbench {

namespace {

struct PropertyRow {
    std::string_view category, text;
};

std::string_view takeWord(std::string_view& row) {
    const auto end = row.find(' ');
    const auto word = row.substr(0, end);
    row.remove_prefix(end + 1);
    return word;
}

PropertyRow rowOf(const QString& property) {
    const auto name = text(property);
    for (auto row : kPropertyRows) {
        if (!basic::equalNoCase(takeWord(row), name)) continue;
        const auto category = takeWord(row);
        return {category, row};
    }
    return {"Misc", ""};
}

QString asQt(std::string_view view) { return QString::fromUtf8(view.data(), qsizetype(view.size())); }

} // namespace

QString categoryOf(const QString& property) { return asQt(rowOf(property).category); }

QString descriptionOf(const QString& property, const host::ClassProperty& details) {
    return details.help.empty() ? asQt(rowOf(property).text) : qt(details.help);
}

} // namespace workbench
