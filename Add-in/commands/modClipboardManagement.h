#pragma once
// Preserves the user's clipboard while button faces are placed through it.
#include "Add-in/core/procedure.h"
#include "Add-in/platform/clipboard.h"

namespace fernwick {

class modClipboardManagement {
public:
    modClipboardManagement(Clipboard& clipboard, ErrorReport& errors) : clipboard_(clipboard), errors_(errors) {}

    /// Saves the clipboard's contents and empties it. A clipboard blocked by another program is left alone and not
    /// saved.
    void BackupClipboardData();
    /// Restores the saved contents in their original order. If the clipboard is blocked they remain saved.
    void RestoreClipboardData();

private:
    struct Kept {
        std::string format;
        /// "" for a format without data, which is restored without data.
        std::string copy;
    };

    Clipboard& clipboard_;
    ErrorReport& errors_;
    std::vector<Kept> kept_;
    bool isKept_ = false;
};

} // namespace fernwick
