#pragma once
// The window that lists what hinders the active project on a device.
#include "Apps/common/migration.h"
#include "Apps/workbench/migration/migration_run.h"
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include <QDialog>
#include <functional>

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace workbench {

class MigrationReport final : public QDialog {
public:
    /// Calls `show` with a place that the user chooses.
    using Show = std::function<void(const apps::Hindrance&)>;

    /// The device that is chosen first is `device`, or the first one if there is none with this key.
    MigrationReport(apps::CheckedProject project, const std::string& device, Show show, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build();
    void offerDevices(const std::string& device);
    void search();
    void stop();
    void showRunning(bool isRunning);
    void list(const apps::Migration& found);
    void fitColumns();
    void choose(const QTreeWidgetItem* item);
    void copy();
    void save();

    apps::CheckedProject project_;
    Show show_;
    std::string installation_;
    designtargetaccess::DesignTargetMgr targets_;
    QComboBox* devices_;
    QLabel* summary_;
    QProgressBar* progress_;
    QPushButton *stop_, *copy_, *save_;
    QTreeWidget* tree_;
    apps::Migration found_;
    MigrationRun run_;
};

} // namespace workbench
