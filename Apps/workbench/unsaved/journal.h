#pragma once
// Stores unsaved changes, so that they survive a crash.
#include "Apps/workbench/unsaved/journal_folder.h"
#include "Host/files/journal_file.h"
#include "Host/model/host.h"
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <map>

namespace workbench {

/// Writes each open project and component that was changed, with new records of its resource file, and all of a project that was never saved: about a second
/// after the change, and at once when another window blocks this one, such as that of a compile. Removes what was saved
/// or discarded.
class Journal final : public QObject {
public:
    /// Called with the reason when writing fails; not again until it has succeeded once.
    using Failed = std::function<void(const QString& why)>;

    /// The host outlives this. `window` is the window that modal dialogs block.
    Journal(host::Host& host, QWidget& window, QString base, Failed failed);
    ~Journal() override;

    /// Writes all changes now.
    void write();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Kept {
        QString path;
        std::uint64_t digest = 0;
    };
    void keepProject(const vbide::Ref<vbide::VBProject>& project);
    void keep(const std::shared_ptr<void>& what, host::JournalEntry entry);
    void dropSaved();

    host::Host& host_;
    QString base_;
    Failed failed_;
    bool failing_ = false;
    std::shared_ptr<JournalFolder> folder_; ///< created when there is something to store
    /// By component, or by project for a project's own text.
    std::map<std::shared_ptr<void>, Kept> kept_;
    int count_ = 0;
    QTimer soon_, tidySoon_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
