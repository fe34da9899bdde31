#pragma once
// Two texts beside each other, for a user who has to choose between them.
#include <QString>
#include <QStringList>

namespace workbench {

/// The lines in which they differ, in their order: "- " before one of the old text, "+ " before one of the new text, and
/// "line N:" (from 1, of the new text) before each run of them. At most so many lines; a last one says that there are more.
QStringList differencesOf(const QString& oldText, const QString& newText, qsizetype most = 200);

} // namespace workbench
