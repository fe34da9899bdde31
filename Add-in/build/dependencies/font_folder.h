#pragma once
// The converted fonts of a folder.
#include "Add-in/build/dependencies/font_file.h"
#include <map>

namespace fernwick {

/// A snapshot of a folder's converted fonts: a scan looks up many fonts, and each file is read once.
class FontFolder {
public:
    /// An empty folder.
    FontFolder() = default;
    /// A missing folder is empty, and files that cannot be opened are left out. Error 70 (permission denied) or 76
    /// (path not found) for a folder that cannot be listed.
    FontFolder(const FileSystemObject& files, const std::string& folder);

    /// Returns the path of the first file, in the folder's order, that holds the font; "" for none.
    std::string find(const FontFace& font) const;

private:
    struct Holder {
        std::size_t place;
        std::string path;
    };
    std::map<FontFace, Holder> holders_;
};

} // namespace fernwick
