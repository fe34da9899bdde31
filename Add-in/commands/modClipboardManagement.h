#pragma once
// Keeps the user's clipboard while button faces pass over it.
#include "Add-in/core/procedure.h"
#include "Add-in/platform/clipboard.h"

namespace fernwick {

class modClipboardManagement {
public:
    modClipboardManagement(Clipboard& clipboard, ErrorReport& errors) : clipboard_(clipboard), errors_(errors) {}

    /// Puts the clipboard's contents aside and empties it. A clipboard that another program keeps open stays as it is
    /// and is not kept.
    void BackupClipboardData();
    /// Puts back what was put aside, in the order in which it was found. A clipboard that can't be opened leaves it
    /// put aside.
    void RestoreClipboardData();

private:
    struct Kept {
        std::string format;
        /// "" for a format without data, which comes back without data.
        std::string copy;
    };

    Clipboard& clipboard_;
    ErrorReport& errors_;
    std::vector<Kept> kept_;
    bool isKept_ = false;
};

} // namespace fernwick
