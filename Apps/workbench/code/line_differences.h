#pragma once
// The differences of two texts, for a user who has to choose between them.
#include <QString>
#include <QStringList>

namespace workbench {

/// Returns the lines that differ, in order: "- " before a line of the old text, "+ " before one of the new text, and
/// "line N:" (from 1, in the new text) before each run. Returns at most `most` lines, and "..." if there are more.
QStringList differencesOf(const QString& oldText, const QString& newText, qsizetype most = 200);

} // namespace workbench
