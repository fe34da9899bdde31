#pragma once
#include <QChar>

namespace workbench {

/// Whether a character may be part of a name.
inline bool isNamePart(QChar c) { return c.isLetterOrNumber() || c == '_'; }

} // namespace workbench
