#pragma once
// Corrects the letter case of keywords.
#include <QString>

namespace workbench {

/// Returns the line with its keywords in their proper case. Strings, comments, members after a dot and words that may
/// be names are unchanged, and so is everything but letter case.
QString withKeywordCase(const QString& line);

/// Returns whether the line's comment continues on the next line.
bool continuesComment(const QString& line);

} // namespace workbench
