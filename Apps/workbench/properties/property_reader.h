#pragma once
// Values of properties as the desktop draws them.
#include "Add-in/platform/host_project.h"
#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QString>
#include <QStringList>

namespace workbench {

/// Reads what there is: a property that the object lacks, or whose value makes no sense, gives the fallback.
class PropertyReader {
public:
    explicit PropertyReader(vbide::Ref<vbide::Properties> properties) : properties_(std::move(properties)) {}

    bool has(const char* name) const;
    QString text(const char* name) const;
    int number(const char* name, int fallback = 0) const;
    double real(const char* name, double fallback = 0) const;
    bool flag(const char* name, bool fallback = false) const;
    QColor colour(const char* name, const QColor& fallback) const;
    /// The members of a property "Font". Pixels are 96 an inch, for the face of Palms 72.
    QFont font() const;
    /// The properties FontName, FontSize and FontStyle of a device control.
    QFont deviceFont() const;
    /// Null where there is none, or none that can be read.
    QPixmap picture(const char* name) const;
    /// Whether there is one, readable or not.
    bool hasPicture(const char* name) const;
    QStringList items(const char* name) const;

private:
    fernwick::Variant value(const char* name) const;

    vbide::Ref<vbide::Properties> properties_;
};

} // namespace workbench
