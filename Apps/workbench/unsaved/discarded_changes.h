#pragma once
#include "Apps/workbench/unsaved/survivors.h"

namespace workbench {

/// The changes that the user discarded after a crash, as ordinary files: one keystroke must not destroy them.
class DiscardedChanges {
public:
    /// They are in a folder beside that of the journals.
    explicit DiscardedChanges(const QString& journalBase);

    const QString& folder() const { return folder_; }
    /// Writes the text of a journal to a file of its own, then removes the journal. Errors as those of atomicSave.
    void keep(const Survivor& survivor) const;

private:
    QString folder_;
};

} // namespace workbench
