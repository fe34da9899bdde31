#pragma once
// Offers the user what a program that ended without saving left in its journal.
#include "Apps/workbench/unsaved/journal_folder.h"
#include "Host/files/journal_file.h"
#include "Host/model/host.h"
#include <QTimer>
#include <QWidget>
#include <functional>
#include <set>

namespace workbench {

/// One text that survived.
struct Survivor {
    std::shared_ptr<JournalFolder> folder; ///< held, so that nobody else offers it
    QString path;
    host::JournalEntry entry;
    /// Its file is another one than the text was made from.
    bool changedOnDisk = false;
};

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

    /// Asks, when Qt's loop turns and no window waits for the user: for each project with survivors once, until it
    /// opens again. Those of projects that are not open are opened first.
    void offerAllSoon();

private:
    void offerAll();
    std::vector<Survivor> survivors();
    void setAside(const QString& path, const QString& why);
    void offer(const std::string& project, std::vector<Survivor> all);
    void restore(const std::string& project, const std::vector<Survivor>& all);
    vbide::Ref<vbide::VBProject> opened(const std::string& path);

    host::Host& host_;
    QWidget& window_;
    QString base_;
    Callbacks callbacks_;
    std::set<std::string> asked_; ///< projects, until they open again
    QTimer soon_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
