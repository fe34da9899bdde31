#include "Components/Tamarik/files/stored_files.h"
#include "Components/Tamarik/files/paths.h"
#include <string_view>

namespace tamarik {

std::int32_t attributesOf(const FileInfo& info, const std::string& path) {
    return (info.isReadOnly ? vbReadOnly : 0) | (info.isFolder ? vbDirectory : 0) |
           (isHidden(nameOf(path)) ? vbHidden : 0);
}

std::uint64_t copyContents(FileStore& store, const std::string& source, const std::string& target) {
    constexpr std::size_t kPiece = 65536;
    const auto read = store.open(source, {true, false, false, false});
    const auto written = store.open(target, {false, true, true, true});
    std::string piece(kPiece, '\0');
    std::uint64_t at = 0;
    while (const std::size_t count = read->read(at, piece.data(), kPiece)) {
        written->write(at, std::string_view(piece).substr(0, count));
        at += count;
    }
    return at;
}

std::string pathIn(const std::string& folder, const std::string& name) {
    return folder.empty() ? name : folder + "/" + name;
}

std::vector<std::string> allBelow(const FileStore& store, const std::string& folder) {
    std::vector<std::string> found{folder};
    for (std::size_t i = 0; i < found.size(); ++i) {
        const std::string path = found[i];
        const auto info = store.find(path);
        if (!info || !info->isFolder) continue;
        for (const auto& name : store.names(path)) found.push_back(pathIn(path, name));
    }
    found.erase(found.begin());
    return found;
}

} // namespace tamarik
