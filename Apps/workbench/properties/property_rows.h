#pragma once
// The properties of one object as a table of names and values.
#include "Apps/workbench/properties/inspected_object.h"
#include "Apps/workbench/properties/property_values.h"
#include "Host/model/forms/property_source.h"
#include <QAbstractTableModel>
#include <QPixmap>
#include <QStringList>
#include <exception>
#include <functional>
#include <string>
#include <vector>

namespace workbench {

class PropertyRows final : public QAbstractTableModel {
public:
    enum Column { kNameColumn, kValueColumn, kColumns };
    /// Called if a value is refused; the old one remains.
    using Refused = std::function<void(std::exception_ptr)>;

    explicit PropertyRows(Refused refused) : refused_(std::move(refused)) {}

    /// Shows these properties in alphabetical order, the name first.
    void show(InspectedObject object);
    /// Groups the rows by category, each after a heading.
    void categorize(bool categorized);
    /// Reads the values again.
    void reread();

    /// The details of a row's property.
    const host::ClassProperty& details(int row) const { return rows_[std::size_t(row)].details; }
    const vbide::Ref<vbide::Property>& property(int row) const { return rows_[std::size_t(row)].property.front(); }
    const QString& name(int row) const { return rows_[std::size_t(row)].name; }
    bool isHeading(int row) const { return rows_[std::size_t(row)].property.empty(); }
    Chooser chooser(int row) const;
    /// The choices of a row; empty if any value can be typed.
    QStringList choices(int row) const;
    /// The row of a property, -1 if the object has no such property.
    int rowOf(const QString& name) const;
    /// Sets a value as if the user had typed it. False if it was refused.
    bool type(int row, const QString& typed);
    /// Changes the property of a row in all objects. False if that was refused.
    bool change(int row, const PropertyChange& change);
    /// Sets the next value of an enumeration or a Boolean.
    void cycle(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Row {
        SharedProperty property; ///< none for a heading
        host::ClassProperty details;
        QString name, shown; ///< nothing is shown for different values
        std::string image;
        QPixmap picture; ///< of the image
        void read();
    };
    static Row rowOfProperty(const SharedProperty& property);
    void sort();
    void addHeadings();
    QVariant look(const Row& row, int role) const;
    QVariant swatch(const Row& row) const;

    Refused refused_;
    InspectedObject object_;
    std::vector<Row> rows_;
    bool categorized_ = false;
};

} // namespace workbench
