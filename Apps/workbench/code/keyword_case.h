#pragma once
// The proper case of keywords.
#include <QString>

namespace workbench {

/// Returns the line with its keywords in proper case. Strings, comments, names after a point and words that can also be
/// names are unchanged, and so is everything but letter case.
QString withKeywordCase(const QString& line);

/// Whether this line's comment continues on the next line.
bool continuesComment(const QString& line);

} // namespace workbench
