#pragma once
// The dialog for a project's name, start-up object and code page.
#include "Add-in/platform/host_project.h"
#include <QDialog>
#include <vector>

class QComboBox;
class QLineEdit;

namespace workbench {

class ProjectProperties final : public QDialog {
public:
    ProjectProperties(vbide::Ref<vbide::VBProject> project, QWidget* parent);

    /// Sets what the user changed. Errors as those of VBProject.Name, which leave the rest unchanged.
    void setChanged();

private:
    void listStartUps();
    void listCodePages();
    void setCodePage();

    vbide::Ref<vbide::VBProject> project_;
    /// The meaning of each entry of the list.
    std::vector<vbide::StartUp> startUps_;
    QLineEdit* name_;
    QComboBox* startUp_;
    QComboBox* codePage_;
    int startedWith_ = 0;
};

/// Shows the dialog and sets what the user changed, unless the user cancels.
void editProperties(const vbide::Ref<vbide::VBProject>& project, QWidget* parent);

} // namespace workbench
