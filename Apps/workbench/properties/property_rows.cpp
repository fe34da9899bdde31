#include "Apps/workbench/properties/property_rows.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/form_colours.h"
#include "Apps/workbench/properties/picture_formats.h"
#include "Apps/workbench/properties/property_descriptions.h"
#include "Basic/runtime_error.h"
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QRegularExpression>
#include <algorithm>
#include <utility>

namespace workbench {

namespace {

constexpr int kSwatchWidth = 18, kSwatchHeight = 12;
constexpr auto kShownName = "(Name)";
const QRegularExpression kLineBreaks("\\r\\n|\\r|\\n");

/// Internal entries of a control's property bag. Those of single pages, such as TabCaption(0), can be edited.
bool isInternal(const std::string& name) {
    return name.empty() || name.front() == '_' || name.find('.') != std::string::npos;
}

} // namespace

PropertyRows::Row PropertyRows::rowOfProperty(const SharedProperty& property) {
    Row row;
    row.property = property;
    row.details = host::detailsOf(property.front());
    row.details.name = property.front()->Name();
    row.name = row.details.name == "Name" ? QString(kShownName) : qt(row.details.name);
    (void)basic::attempt([&] { row.read(); });
    return row;
}

void PropertyRows::Row::read() {
    if (property.empty()) return;
    shown = shownValue(details, property.front());
    const auto differs = [&](const auto& other) { return shownValue(details, other) != shown; };
    if (std::any_of(property.begin() + 1, property.end(), differs)) shown.clear();
    if (details.kind != host::PropertyKind::Picture) return;
    auto now = host::imageOf(property.front());
    if (now == image) return;
    image = std::move(now);
    picture = thumbnail(image, {kSwatchWidth, kSwatchHeight});
}

void PropertyRows::show(InspectedObject object) {
    beginResetModel();
    object_ = std::move(object);
    rows_.clear();
    for (const auto& property : object_.properties)
        (void)basic::attempt([&] {
            if (!isInternal(property.front()->Name())) rows_.push_back(rowOfProperty(property));
        });
    sort();
    endResetModel();
}

void PropertyRows::categorize(bool categorized) {
    beginResetModel();
    categorized_ = categorized;
    std::erase_if(rows_, [](const Row& row) { return row.property.empty(); });
    sort();
    endResetModel();
}

void PropertyRows::sort() {
    const auto keyOf = [this](const Row& row) {
        return std::pair(categorized_ ? categoryOf(row.name) : QString(), row.name.toLower());
    };
    std::sort(rows_.begin(), rows_.end(), [&](const Row& a, const Row& b) { return keyOf(a) < keyOf(b); });
    if (categorized_) addHeadings();
}

void PropertyRows::addHeadings() {
    std::vector<Row> grouped;
    QString last;
    for (auto& row : rows_) {
        const auto category = categoryOf(row.name);
        if (category != last) grouped.emplace_back().name = category;
        last = category;
        grouped.push_back(std::move(row));
    }
    rows_ = std::move(grouped);
}

void PropertyRows::reread() {
    for (auto& row : rows_) (void)basic::attempt([&] { row.read(); });
    if (!rows_.empty()) Q_EMIT dataChanged(index(0, kNameColumn), index(rowCount() - 1, kValueColumn));
}

Chooser PropertyRows::chooser(int row) const {
    const int lines = rowOf("MultiLine");
    const bool hasLines = lines >= 0 && rows_[std::size_t(lines)].shown == "True";
    const auto& asked = rows_[std::size_t(row)];
    return asked.property.empty() ? Chooser::None : chooserOf(asked.details, asked.shown, hasLines);
}

QStringList PropertyRows::choices(int row) const {
    QStringList choices;
    if (isHeading(row)) return choices;
    (void)basic::attempt([&] { choices = shownChoices(details(row), property(row)->Value()); });
    return choices;
}

int PropertyRows::rowOf(const QString& name) const {
    for (std::size_t i = 0; i < rows_.size(); ++i)
        if (!rows_[i].property.empty() && rows_[i].name.compare(name, Qt::CaseInsensitive) == 0) return int(i);
    return -1;
}

bool PropertyRows::type(int row, const QString& typed) {
    const auto& target = rows_[std::size_t(row)];
    if (typed == target.shown) return true;
    return change(row, [details = target.details, typed](const auto& property) {
        property->Value(typedValue(details, property->Value(), typed));
    });
}

/// A dialog of an add-in may lead to other rows in the meantime.
bool PropertyRows::change(int row, const PropertyChange& change) {
    const auto property = rows_[std::size_t(row)].property;
    const auto make = object_.change;
    try {
        make(property, change);
    } catch (...) {
        refused_(std::current_exception());
        return false;
    }
    reread();
    return true;
}

void PropertyRows::cycle(int row) {
    const auto all = choices(row);
    if (all.isEmpty()) return;
    const auto now = all.indexOf(rows_[std::size_t(row)].shown);
    type(row, all[(now + 1) % all.size()]);
}

// ---- for the view ---------------------------------------------------------------------------------------------------

int PropertyRows::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(rows_.size()); }

int PropertyRows::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(kColumns); }

QVariant PropertyRows::swatch(const Row& row) const {
    if (!row.picture.isNull()) return row.picture;
    const auto colour = row.details.showsColour() ? formColourOf(row.shown) : std::nullopt;
    return colour ? colourSwatch(*colour, {kSwatchWidth, kSwatchHeight}) : QVariant();
}

QVariant PropertyRows::data(const QModelIndex& index, int role) const {
    const auto& row = rows_[std::size_t(index.row())];
    const bool isValue = index.column() == kValueColumn;
    switch (role) {
    case Qt::DisplayRole: return isValue ? QString(row.shown).replace(kLineBreaks, " ") : row.name;
    case Qt::EditRole: return isValue ? row.shown : row.name;
    case Qt::ToolTipRole: return isValue ? row.shown : row.name;
    case Qt::DecorationRole: return isValue ? swatch(row) : QVariant();
    default: return row.property.empty() ? look(row, role) : QVariant();
    }
}

/// Of a heading.
QVariant PropertyRows::look(const Row&, int role) const {
    const auto palette = QGuiApplication::palette();
    QFont bold;
    bold.setBold(true);
    switch (role) {
    case Qt::FontRole: return bold;
    case Qt::BackgroundRole: return palette.alternateBase();
    case Qt::ForegroundRole: return palette.text();
    default: return {};
    }
}

bool PropertyRows::setData(const QModelIndex& index, const QVariant& value, int role) {
    return role == Qt::EditRole && index.column() == kValueColumn && type(index.row(), value.toString());
}

QVariant PropertyRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return section == kNameColumn ? "Property" : "Value";
}

Qt::ItemFlags PropertyRows::flags(const QModelIndex& index) const {
    const auto& row = rows_[std::size_t(index.row())];
    if (row.property.empty()) return Qt::NoItemFlags;
    const bool edits = index.column() == kValueColumn && isEditable(row.details, row.shown);
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | (edits ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

} // namespace workbench
