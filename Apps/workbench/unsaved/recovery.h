#pragma once
// Offers to restore the journals of programs that ended without saving.
#include "Apps/workbench/unsaved/discarded_changes.h"
#include "Apps/workbench/unsaved/survivors.h"
#include "Host/model/host.h"
#include <QTimer>
#include <QWidget>
#include <functional>
#include <set>

namespace workbench {

class Recovery {
public:
    struct Callbacks {
        /// Opens a project and shows an error in a box.
        std::function<void(const std::string& path)> open;
        /// Writes what was restored to the journal of this program.
        std::function<void()> keep;
        /// Shows a message that needs no answer.
        std::function<void(const QString&)> warn;
    };

    Recovery(host::Host& host, QWidget& window, QString base, Callbacks callbacks);

    /// Asks when Qt's loop turns and no dialog is open: once for each project with unsaved changes, until it is opened
    /// again. Restoring opens a project that is not open.
    void offerAllSoon();

private:
    void offerAll();
    void setAside(const QString& path, const QString& why);
    void offer(const std::string& project, std::vector<Survivor> all);
    void restore(const std::string& project, const std::vector<Survivor>& all);
    bool putBackOrWarn(host::Project& project, const host::JournalEntry& entry);
    void discard(const std::vector<Survivor>& all);
    vbide::Ref<vbide::VBProject> openAt(const std::string& path) const;
    vbide::Ref<vbide::VBProject> opened(const std::string& path);
    vbide::Ref<vbide::VBProject> openedFrom(const host::JournalEntry& entry,
                                            const std::function<void(host::Project&)>& fill);

    host::Host& host_;
    QWidget& window_;
    QString base_;
    DiscardedChanges discarded_;
    Callbacks callbacks_;
    std::set<std::string> asked_; ///< projects, until they are opened again
    QTimer soon_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
