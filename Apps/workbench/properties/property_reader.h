#pragma once
// Reads the values of properties as Qt's types.
#include "Add-in/platform/host_project.h"
#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QString>
#include <QStringList>

namespace workbench {

/// Returns the fallback for a property that the object lacks or whose value is invalid.
class PropertyReader {
public:
    explicit PropertyReader(vbide::Ref<vbide::Properties> properties) : properties_(std::move(properties)) {}

    bool has(const char* name) const;
    QString text(const char* name) const;
    int number(const char* name, int fallback = 0) const;
    double real(const char* name, double fallback = 0) const;
    bool flag(const char* name, bool fallback = false) const;
    QColor colour(const char* name, const QColor& fallback) const;
    /// Reads a property "Font". There are 96 pixels per inch, or 72 for the font of Palms.
    QFont font() const;
    /// Reads the properties FontName, FontSize and FontStyle of a device control.
    QFont deviceFont() const;
    /// Null if there is none or it cannot be read.
    QPixmap picture(const char* name) const;
    /// Whether there is a picture, readable or not.
    bool hasPicture(const char* name) const;
    QStringList items(const char* name) const;

private:
    fernwick::Variant value(const char* name) const;

    vbide::Ref<vbide::Properties> properties_;
};

} // namespace workbench
