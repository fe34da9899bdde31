#pragma once
// A project's name, and what it starts with.
#include "Add-in/platform/host_project.h"
#include <QDialog>
#include <vector>

class QComboBox;
class QLineEdit;

namespace workbench {

class ProjectProperties final : public QDialog {
public:
    ProjectProperties(vbide::Ref<vbide::VBProject> project, QWidget* parent);

    /// Sets what the user has changed. Errors as those of VBProject.Name, which leave the rest as it was.
    void setChanged();

private:
    void listStartUps();

    vbide::Ref<vbide::VBProject> project_;
    /// What the entries of the list stand for.
    std::vector<vbide::StartUp> startUps_;
    QLineEdit* name_;
    QComboBox* startUp_;
    int startedWith_ = 0;
};

/// Shows them, and sets them when the user says so.
void editProperties(const vbide::Ref<vbide::VBProject>& project, QWidget* parent);

} // namespace workbench
