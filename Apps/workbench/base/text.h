#pragma once
// Conversion between UTF-8 strings and Qt's.
#include <QString>
#include <string>

namespace workbench {

inline QString qt(const std::string& text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }
inline std::string text(const QString& text) { return text.toStdString(); }

} // namespace workbench
