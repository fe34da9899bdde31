#include "Add-in/build/dependencies/font_folder.h"
#include "Add-in/build/dependencies/resource_list.h"
#include "Basic/text.h"

namespace fernwick {

FontFolder::FontFolder(const FileSystemObject& files, const std::string& folder) {
    if (folder.empty() || !files.FolderExists(folder)) return;
    std::size_t place = 0;
    for (const auto& name : files.Files(folder)) {
        if (basic::UCase(files.GetExtensionName(name)) != kFontType) continue;
        const auto path = files.BuildPath(folder, name);
        if (auto font = CheckFontFile(files, path)) holders_.try_emplace(*std::move(font), Holder{place++, path});
    }
}

std::string FontFolder::find(const FontFace& font) const {
    const Holder* first = nullptr;
    for (const auto& name : convertedFaceNames(font.name)) {
        const auto holder = holders_.find(FontFace{name, font.style, font.size});
        if (holder != holders_.end() && (!first || holder->second.place < first->place)) first = &holder->second;
    }
    return first ? first->path : std::string{};
}

} // namespace fernwick
