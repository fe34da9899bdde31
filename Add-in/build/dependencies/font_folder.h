#pragma once
// The converted fonts of a folder.
#include "Add-in/build/dependencies/font_file.h"
#include <map>

namespace fernwick {

/// A folder's converted fonts as they are when it is made: a scan asks for many fonts, and reads each file once.
class FontFolder {
public:
    /// None.
    FontFolder() = default;
    /// A folder that isn't there has none, nor has a file that can't be opened. Errors 70 and 76 for a folder that
    /// can't be listed.
    FontFolder(const FileSystemObject& files, const std::string& folder);

    /// Path of the first file, in the folder's order, that holds the font; "" for none.
    std::string find(const FontFace& font) const;

private:
    struct Holder {
        std::size_t place;
        std::string path;
    };
    std::map<FontFace, Holder> holders_;
};

} // namespace fernwick
