#pragma once
// What properties do, and the categories in which the properties window groups them.
#include "Host/model/forms/control_class.h"
#include <QString>

namespace workbench {

/// "Misc" for a property that is not known.
QString categoryOf(const QString& property);
/// One or two sentences; "" if there are none. The description of a device's control takes precedence.
QString descriptionOf(const QString& property, const host::ClassProperty& details);

} // namespace workbench
