#pragma once
// Protects the user's text: the journal, its recovery after a crash, and changes by other programs.
#include "Apps/workbench/unsaved/journal.h"
#include "Apps/workbench/unsaved/outside_changes.h"
#include "Apps/workbench/unsaved/recovery.h"

namespace workbench {

class UnsavedWork {
public:
    struct Callbacks {
        /// Opens a project and shows an error in a box.
        std::function<void(const std::string& path)> open;
        /// Closes a project without saving it and opens its file again.
        std::function<void(const vbide::Ref<vbide::VBProject>&)> reopen;
        /// Draws names and dirty marks again.
        std::function<void()> refresh;
    };

    /// Host and window outlive this.
    UnsavedWork(host::Host& host, QWidget& window, Callbacks callbacks);

    /// Called when the program has started: offers what an earlier one could not save.
    void started() { recovery_.offerAllSoon(); }

private:
    void warn(const QString& text);

    QString base_ = journalBase();
    QWidget& window_;
    Journal journal_;
    OutsideChanges outside_;
    Recovery recovery_;
};

} // namespace workbench
