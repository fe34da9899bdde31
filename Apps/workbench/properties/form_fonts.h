#pragma once
// The fonts that forms name, which are seldom installed.
#include <QFont>
#include <QString>

namespace workbench {

/// Returns the family, or one with similar metrics that is condensed or widened until its letters are as wide as those
/// of the family. "" and sizes out of range mean the font of new forms. There are 96 pixels per inch, or 72 for the
/// font of Palms.
QFont formFont(const QString& family, double points);

} // namespace workbench
