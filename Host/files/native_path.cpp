#include "Host/files/native_path.h"

namespace host {

std::string folderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos) return {};
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string fileNameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

std::string baseNameOf(const std::string& path) {
    const auto name = fileNameOf(path);
    return name.substr(0, name.rfind('.'));
}

std::string pathIn(const std::string& folder, std::string_view name) {
    auto path = folder;
    if (!path.ends_with('/')) path += '/';
    return path.append(name);
}

std::string withExtension(const std::string& path, std::string_view extension) {
    const auto point = path.rfind('.');
    const auto separator = path.find_last_of("/\\");
    const bool hasExtension = point != std::string::npos && (separator == std::string::npos || point > separator);
    return path.substr(0, hasExtension ? point : path.size()).append(extension);
}

} // namespace host
