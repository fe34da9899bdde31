#pragma once
// Notices files of open projects that another program changed, and asks the user what to do.
#include "Apps/workbench/unsaved/outside_box.h"
#include "Host/model/host.h"
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <functional>
#include <map>

namespace workbench {

class MainWindow;

class OutsideChanges final : public QObject {
public:
    /// Told what goes wrong when a file is read again.
    using Tell = std::function<void(const QString&)>;

    /// Host and window outlive this.
    OutsideChanges(host::Host& host, MainWindow& window, Tell tell);

    /// The user knows of all changes so far.
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
    MainWindow& window_;
    Tell tell_;
    QFileSystemWatcher watcher_;
    QTimer soon_;
    /// What stood in a file when the user was asked about it.
    std::map<std::string, std::uint64_t> known_;
    std::vector<fernwick::Subscription> watches_;
};

/// Asks whether a save may replace a file that another program changed.
bool mayReplaceChanged(const std::string& path);

} // namespace workbench
