#pragma once
// Asks for the kind of a new project.
#include <QDialog>
#include <optional>
#include <string>
#include <vector>

class QListWidget;

namespace workbench {

/// A row of the dialog: the host's own empty project, or a template.
struct ProjectKind {
    std::string name;
    /// The template's path; "" for the host's own.
    std::string path;
};

/// The host's own kind first, then the templates of this folder, sorted by name, ignoring case.
std::vector<ProjectKind> projectKinds(const std::string& templateFolder);

class NewProjectDialog final : public QDialog {
public:
    /// Selects the kind of Fernwick projects if there is one.
    NewProjectDialog(std::vector<ProjectKind> kinds, QWidget* parent);

    const ProjectKind& chosen() const;

private:
    std::vector<ProjectKind> kinds_;
    QListWidget* list_;
};

/// Empty if the user cancels. Does not ask if there are no templates.
std::optional<ProjectKind> askForProjectKind(const std::string& templateFolder, QWidget* parent);

} // namespace workbench
