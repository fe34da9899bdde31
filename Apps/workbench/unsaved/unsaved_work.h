#pragma once
// What keeps the user's text from being lost, put together.
#include "Apps/workbench/unsaved/journal.h"
#include "Apps/workbench/unsaved/outside_changes.h"
#include "Apps/workbench/unsaved/recovery.h"

namespace workbench {

class UnsavedWork {
public:
    /// `open` opens a project and tells what goes wrong. Host and window outlive this.
    UnsavedWork(host::Host& host, MainWindow& window, std::function<void(const std::string& path)> open);

    /// The program has started: text that survived another one is offered.
    void started() { recovery_.offerAllSoon(); }

private:
    void tell(const QString& text);

    QString base_ = journalBase();
    MainWindow& window_;
    Journal journal_;
    OutsideChanges outside_;
    Recovery recovery_;
};

} // namespace workbench
