#pragma once
// Keywords in the letters in which the language writes them.
#include <QString>

namespace workbench {

/// The line with its keywords so written. Texts, comments, names behind a point and words that may be names as well stay
/// as they are; nothing but letter case is another one.
QString withKeywordCase(const QString& line);

/// Whether the next line is still a part of this line's comment.
bool continuesComment(const QString& line);

} // namespace workbench
