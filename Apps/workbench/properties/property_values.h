#pragma once
// Values of properties between the host and what the user reads and types.
#include "Host/model/forms/property_source.h"
#include <QString>
#include <QStringList>

namespace workbench {

/// "1 - Fixed Single" for an enumeration, "True", "&H8000000F&", "(None)" for no picture.
QString shownValue(const host::ClassProperty& details, const vbide::Ref<vbide::Property>& property);

/// What the user typed or chose as a value. Errors: 380 for one that the property can't have, 13 for a text that is no
/// number, 6 for one too large.
fernwick::Variant typedValue(const host::ClassProperty& details, const fernwick::Variant& before, const QString& typed);

/// What there is to choose from as it is shown, for an enumeration or a Boolean; empty for all else.
QStringList shownChoices(const host::ClassProperty& details, const fernwick::Variant& value);

/// Pictures, lists and texts of several lines come from files that this window doesn't write. Of a property of which
/// nothing is known and that says nothing there is no telling what may be typed.
bool isEditable(const host::ClassProperty& details, const QString& shown);

} // namespace workbench
