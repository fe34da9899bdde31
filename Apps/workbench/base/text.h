#pragma once
// Between the system's texts and Qt's.
#include <QString>
#include <string>

namespace workbench {

inline QString qt(const std::string& text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }
inline std::string text(const QString& text) { return text.toStdString(); }

} // namespace workbench
