#pragma once
// Keeps what is not saved yet beside the user's state, so that it outlives a crash.
#include "Apps/workbench/unsaved/journal_folder.h"
#include "Host/model/host.h"
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <map>

namespace workbench {

/// Each changed component of each open project is written about a second after it was changed, and at once when a window
/// comes up that blocks this one, as that of a compile. What is saved or given up is removed.
class Journal final : public QObject {
public:
    /// Told why text can't be kept, once until it can again.
    using Failed = std::function<void(const QString& why)>;

    /// The host outlives this. `window` is the one that others block.
    Journal(host::Host& host, QWidget& window, QString base, Failed failed);
    ~Journal() override;

    /// Writes what is not written yet.
    void write();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Kept {
        QString path;
        std::uint64_t digest = 0;
    };
    void keep(const vbide::Ref<vbide::VBProject>& project, const vbide::Ref<vbide::VBComponent>& component);
    void dropSaved();

    host::Host& host_;
    QString base_;
    Failed failed_;
    bool failing_ = false;
    std::shared_ptr<JournalFolder> folder_; ///< made when there is something to keep
    std::map<std::shared_ptr<vbide::VBComponent>, Kept> kept_;
    int count_ = 0;
    QTimer soon_, tidySoon_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
