#pragma once
// Corrects the letter case of keywords and declared names.
#include <QString>
#include <functional>

namespace workbench {

/// Returns how a name is written, given the word before its point ("" for none); "" for an unknown name.
using NameLookup = std::function<QString(const QString& name, const QString& object)>;

/// Returns the line with its keywords in their proper case and its names as the lookup writes them. Strings, comments,
/// other members after a dot and words that may be names are unchanged, and so is everything but letter case.
QString withKeywordCase(
    const QString& line, const NameLookup& names = [](const QString&, const QString&) { return QString(); });

/// Returns whether the line's comment continues on the next line.
bool continuesComment(const QString& line);

} // namespace workbench
