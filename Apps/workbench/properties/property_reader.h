#pragma once
// Reads the values of properties as Qt's types.
#include "Add-in/platform/host_project.h"
#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <optional>
#include <string>

namespace workbench {

/// Returns the fallback for a property that the object lacks or whose value is invalid.
class PropertyReader {
public:
    explicit PropertyReader(vbide::Ref<vbide::Properties> properties) : properties_(std::move(properties)) {}

    bool has(const std::string& name) const;
    QString text(const std::string& name) const;
    int number(const std::string& name, int fallback = 0) const;
    double real(const std::string& name, double fallback = 0) const;
    bool flag(const std::string& name, bool fallback = false) const;
    QColor colour(const std::string& name, const QColor& fallback) const;
    /// Reads a property "Font".
    QFont font() const;
    /// Reads the properties FontName, FontSize and FontStyle of a device control.
    QFont deviceFont() const;
    /// Null if there is none or it cannot be read.
    QPixmap picture(const std::string& name) const;
    /// Whether there is a picture, readable or not.
    bool hasPicture(const std::string& name) const;
    QStringList items(const std::string& name) const;
    /// The members of a property that is a group of values, such as a list's columns.
    std::optional<PropertyReader> group(const std::string& name) const;

private:
    fernwick::Variant value(const std::string& name) const;

    vbide::Ref<vbide::Properties> properties_;
};

} // namespace workbench
