#pragma once
// Watches the files of open projects for changes by other programs, and asks the user what to do.
#include "Apps/workbench/unsaved/outside_box.h"
#include "Host/model/host.h"
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <functional>
#include <map>

namespace workbench {

class OutsideChanges final : public QObject {
public:
    struct Callbacks {
        /// Closes a project without saving it and opens its file again.
        std::function<void(const vbide::Ref<vbide::VBProject>&)> reopen;
        /// Draws names and dirty marks again.
        std::function<void()> refresh;
        /// Shows an error that occurred while a file was read again.
        std::function<void(const QString&)> warn;
    };

    /// Host and window outlive this.
    OutsideChanges(host::Host& host, QWidget& window, Callbacks callbacks);

    /// Treats all changes so far as known to the user.
    void settle();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void check();
    void watchFiles();
    std::vector<OutsideChange> changes() const;
    void look(OutsideChange change, const std::optional<host::FileStamp>& stamp,
              const std::function<std::string()>& bytesHere, std::vector<OutsideChange>& all) const;
    void lookAt(const vbide::Ref<vbide::VBProject>& project, std::vector<OutsideChange>& all) const;
    void carryOut(const OutsideChange& change, bool reload);
    void reread(const OutsideChange& change);

    host::Host& host_;
    QWidget& window_;
    Callbacks callbacks_;
    QFileSystemWatcher watcher_;
    QTimer soon_;
    /// The digest of each file when the user was asked about it.
    std::map<std::string, std::uint64_t> known_;
    std::vector<fernwick::Subscription> watches_;
};

/// Asks whether a save may overwrite a file that another program changed.
bool mayReplaceChanged(const std::string& path);

} // namespace workbench
