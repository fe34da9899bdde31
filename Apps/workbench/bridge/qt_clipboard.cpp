#include "Apps/workbench/bridge/qt_clipboard.h"
#include "Apps/workbench/base/text.h"
#include "Basic/code_page.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>
#include <algorithm>
#include <memory>

namespace workbench {

namespace {

auto find(auto& contents, const std::string& format) {
    return std::find_if(contents.begin(), contents.end(), [&](const auto& one) { return one.first == format; });
}

} // namespace

const QtClipboard::Contents& QtClipboard::desktops() const {
    if (read_) return *read_;
    read_.emplace();
    QTimer::singleShot(0, &context_, [this] {
        publish();
        read_.reset(); // another program may copy something
    });
    if (const auto* held = QGuiApplication::clipboard()->mimeData())
        for (const auto& format : held->formats()) read_->emplace_back(text(format), held->data(format).toStdString());
    return *read_;
}

std::vector<std::string> QtClipboard::Formats() const {
    std::vector<std::string> formats;
    for (const auto& [format, data] : contents()) formats.push_back(format);
    return formats;
}

std::string QtClipboard::GetData(const std::string& format) const {
    const auto found = find(contents(), format);
    return found == contents().end() ? std::string() : found->second;
}

QtClipboard::Contents& QtClipboard::change() {
    if (!changed_) changed_ = desktops();
    return *changed_;
}

void QtClipboard::SetData(const std::string& format, const std::string& data) {
    auto& contents = change();
    const auto found = find(contents, format);
    if (found == contents.end())
        contents.emplace_back(format, data);
    else
        found->second = data;
}

void QtClipboard::Clear() { change().clear(); }

void QtClipboard::publish() const {
    const auto wanted = std::exchange(changed_, {});
    if (!wanted || wanted == read_) return;
    auto fresh = std::make_unique<QMimeData>();
    for (const auto& [format, data] : *wanted) fresh->setData(qt(format), QByteArray::fromStdString(data));
    if (const auto ansi = find(*wanted, fernwick::kAnsiTextFormat);
        ansi != wanted->end() && !fresh->hasFormat(fernwick::kTextFormat))
        fresh->setText(qt(basic::CodePage::windows1252().decode(ansi->second.substr(0, ansi->second.find('\0')))));
    if (wanted->empty())
        QGuiApplication::clipboard()->clear();
    else
        QGuiApplication::clipboard()->setMimeData(fresh.release());
}

} // namespace workbench
