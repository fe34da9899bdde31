#pragma once
// The properties of one object as rows of name and value.
#include "Apps/workbench/properties/inspected_object.h"
#include "Host/model/forms/property_source.h"
#include <QAbstractTableModel>
#include <QStringList>
#include <functional>
#include <vector>

namespace workbench {

class PropertyRows final : public QAbstractTableModel {
public:
    enum Column { kNameColumn, kValueColumn, kColumns };
    /// Told of a value that was refused; the old one stays.
    using Refused = std::function<void(std::exception_ptr)>;

    explicit PropertyRows(Refused refused) : refused_(std::move(refused)) {}

    /// In the alphabet's order, the name in front.
    void show(InspectedObject object);
    /// The values may be others.
    void reread();

    /// The details of a row's property.
    const host::ClassProperty& details(int row) const { return rows_[std::size_t(row)].details; }
    const vbide::Ref<vbide::Property>& property(int row) const { return rows_[std::size_t(row)].property; }
    /// What there is to choose from in a row; empty where the user types.
    QStringList choices(int row) const;
    /// The row of a property, -1 where the object has none of that name.
    int rowOf(const QString& name) const;
    /// Sets a value as if the user had typed it. False when it was refused.
    bool type(int row, const QString& typed);
    /// Sets the value that comes behind the present one, for enumerations and Booleans.
    void cycle(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Row {
        vbide::Ref<vbide::Property> property;
        host::ClassProperty details;
        QString name, shown;
    };
    static Row rowOfProperty(const vbide::Ref<vbide::Property>& property);
    QVariant swatch(const Row& row) const;

    Refused refused_;
    InspectedObject object_;
    std::vector<Row> rows_;
};

} // namespace workbench
