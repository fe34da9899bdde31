#pragma once
// Converts values of properties to and from what the user reads and types.
#include "Host/model/forms/property_source.h"
#include <QString>
#include <QStringList>

namespace workbench {

/// "1 - Fixed Single" for an enumeration, "True", "&H8000000F&", "(None)" for no picture.
QString shownValue(const host::ClassProperty& details, const vbide::Ref<vbide::Property>& property);

/// Converts what the user typed or chose. Errors: 380 for a value that the property cannot have, 13 for a text that is
/// not a number, 6 for a number that is too large.
fernwick::Variant typedValue(const host::ClassProperty& details, const fernwick::Variant& before, const QString& typed);

/// The choices of an enumeration or a Boolean, as they are shown; empty for all else.
QStringList shownChoices(const host::ClassProperty& details, const fernwick::Variant& value);

/// Whether the value can be typed. Pictures, lists and texts of several lines are chosen or edited in a window. A
/// property without a description and without a value has no known type.
bool isEditable(const host::ClassProperty& details, const QString& shown);

/// The window in which a value is chosen.
enum class Chooser { None, Colour, Font, Picture, Items, Lines };

/// `hasLines` is the object's property MultiLine.
Chooser chooserOf(const host::ClassProperty& details, const QString& shown, bool hasLines);

} // namespace workbench
