#pragma once
// Asks for the new name of a name, and shows what would change.
#include "Apps/workbench/assist/program_task.h"
#include "Apps/workbench/assist/project_insight.h"
#include "Components/QLToolkit/insight/renaming.h"
#include <QDialog>
#include <functional>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTreeWidget;

namespace workbench {

class RenameDialog final : public QDialog {
public:
    /// Makes the change. Returns why it is not possible, or "".
    using Apply = std::function<QString(const qltoolkit::Renaming&, const std::string& newName)>;

    RenameDialog(ProjectInsight& insight, ProjectInsight::Program program, qltoolkit::NamePlace place, Apply apply,
                 QWidget* parent);

    /// Checks the new name and makes the change.
    void accept() override;
    bool isBusy() const { return task_.isRunning(); }

private:
    void build();
    void prepare(qltoolkit::NamePlace place);
    void showPlaces();
    void begin(const char* text);
    void finish();
    void refuse(const QString& why);
    void updateButton();

    ProjectInsight::Program program_;
    std::shared_ptr<qltoolkit::Renaming> renaming_ = std::make_shared<qltoolkit::Renaming>();
    Apply apply_;
    QLabel *label_, *status_, *problem_;
    QLineEdit* name_;
    QTreeWidget* places_;
    QProgressBar* progress_;
    QPushButton* rename_;
    ProgramTask task_;
};

} // namespace workbench
