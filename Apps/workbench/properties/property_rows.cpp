#include "Apps/workbench/properties/property_rows.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/form_colours.h"
#include "Apps/workbench/properties/property_values.h"
#include "Basic/runtime_error.h"
#include <QRegularExpression>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kSwatchWidth = 18, kSwatchHeight = 12;
constexpr auto kShownName = "(Name)";
const QRegularExpression kLineBreaks("\\r\\n|\\r|\\n");

/// Internal entries of a control's property bag.
bool isInternal(const std::string& name) {
    return name.empty() || name.front() == '_' || name.find_first_of(".(") != std::string::npos;
}

} // namespace

PropertyRows::Row PropertyRows::rowOfProperty(const vbide::Ref<vbide::Property>& property) {
    Row row;
    row.property = property;
    row.details = host::detailsOf(property);
    row.details.name = property->Name();
    row.name = row.details.name == "Name" ? QString(kShownName) : qt(row.details.name);
    (void)basic::attempt([&] { row.shown = shownValue(row.details, property); });
    return row;
}

void PropertyRows::show(InspectedObject object) {
    beginResetModel();
    object_ = std::move(object);
    rows_.clear();
    for (const auto& property : object_.properties)
        (void)basic::attempt([&] {
            if (!isInternal(property->Name())) rows_.push_back(rowOfProperty(property));
        });
    std::sort(rows_.begin(), rows_.end(),
              [](const Row& a, const Row& b) { return a.name.compare(b.name, Qt::CaseInsensitive) < 0; });
    endResetModel();
}

void PropertyRows::reread() {
    for (auto& row : rows_) (void)basic::attempt([&] { row.shown = shownValue(row.details, row.property); });
    if (!rows_.empty()) Q_EMIT dataChanged(index(0, kNameColumn), index(rowCount() - 1, kValueColumn));
}

QStringList PropertyRows::choices(int row) const {
    QStringList choices;
    (void)basic::attempt([&] { choices = shownChoices(details(row), property(row)->Value()); });
    return choices;
}

int PropertyRows::rowOf(const QString& name) const {
    for (std::size_t i = 0; i < rows_.size(); ++i)
        if (rows_[i].name.compare(name, Qt::CaseInsensitive) == 0) return int(i);
    return -1;
}

bool PropertyRows::type(int row, const QString& typed) {
    const auto target = rows_[std::size_t(row)]; // a dialog of an add-in may lead to other rows
    const auto set = object_.set;
    if (typed == target.shown) return true;
    try {
        set(target.property, typedValue(target.details, target.property->Value(), typed));
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
    const bool edits = index.column() == kValueColumn && isEditable(row.details, row.shown);
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | (edits ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

} // namespace workbench
