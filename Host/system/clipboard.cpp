#include "Host/system/clipboard.h"

namespace host {

std::vector<std::string> Clipboard::Formats() const {
    std::vector<std::string> formats;
    for (const auto& [format, data] : contents_) formats.push_back(format);
    return formats;
}

std::string Clipboard::GetData(const std::string& format) const {
    for (const auto& [name, data] : contents_)
        if (name == format) return data;
    return "";
}

void Clipboard::SetData(const std::string& format, const std::string& data) {
    for (auto& [name, old] : contents_)
        if (name == format) return void(old = data);
    contents_.emplace_back(format, data);
}

} // namespace host
