#pragma once
// What kind of project a new one is to be.
#include <QDialog>
#include <optional>
#include <string>
#include <vector>

class QListWidget;

namespace workbench {

/// A row of the dialog: the host's own empty project, or a template of its folder.
struct ProjectKind {
    std::string name;
    /// The template's path; "" for the host's own.
    std::string path;
};

/// The host's own first, then the templates of this folder, sorted by name without regard to letter case.
std::vector<ProjectKind> projectKinds(const std::string& templateFolder);

class NewProjectDialog final : public QDialog {
public:
    /// The kind of Fernwick projects is chosen where there is one.
    NewProjectDialog(std::vector<ProjectKind> kinds, QWidget* parent);

    const ProjectKind& chosen() const;

private:
    std::vector<ProjectKind> kinds_;
    QListWidget* list_;
};

/// Nothing when the user cancels. Without a template there is nothing to ask.
std::optional<ProjectKind> askForProjectKind(const std::string& templateFolder, QWidget* parent);

} // namespace workbench
