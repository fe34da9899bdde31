#include "Apps/workbench/qt_clipboard.h"
#include "Apps/workbench/text.h"
#include "Basic/code_page.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>

namespace workbench {

std::vector<std::string> QtClipboard::Formats() const {
    std::vector<std::string> formats;
    if (const auto* held = QGuiApplication::clipboard()->mimeData())
        for (const auto& format : held->formats()) formats.push_back(text(format));
    return formats;
}

std::string QtClipboard::GetData(const std::string& format) const {
    const auto* held = QGuiApplication::clipboard()->mimeData();
    return held ? held->data(qt(format)).toStdString() : std::string();
}

void QtClipboard::SetData(const std::string& format, const std::string& data) {
    auto fresh = std::make_unique<QMimeData>();
    for (const auto& there : Formats()) fresh->setData(qt(there), QByteArray::fromStdString(GetData(there)));
    fresh->setData(qt(format), QByteArray::fromStdString(data));
    if (format == fernwick::kAnsiTextFormat && !fresh->hasFormat(fernwick::kTextFormat))
        fresh->setText(qt(basic::CodePage::windows1252().decode(data.substr(0, data.find('\0')))));
    QGuiApplication::clipboard()->setMimeData(fresh.release());
}

void QtClipboard::Clear() { QGuiApplication::clipboard()->clear(); }

} // namespace workbench
