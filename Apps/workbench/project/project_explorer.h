#pragma once
// The open projects as a tree: their components in groups.
#include "Add-in/platform/host.h"
#include <QTimer>
#include <QTreeWidget>
#include <functional>
#include <vector>

namespace workbench {

class ProjectExplorer final : public QTreeWidget {
public:
    /// The explorer's calls to the desktop.
    struct Callbacks {
        std::function<void(vbide::Ref<vbide::VBProject>)> activateProject;
        std::function<void(vbide::Ref<vbide::VBComponent>)> openCode;
        /// The tree was drawn, as it is after every change of projects and components.
        std::function<void()> drawn = [] {};
    };

    ProjectExplorer(vbide::Ref<vbide::VBE> host, Callbacks callbacks);

    /// Draws the tree again when Qt's loop turns.
    void refreshSoon() { redraw_.start(); }
    /// The selected project or component; Nothing for another kind of entry.
    vbide::Ref<vbide::VBProject> currentProject() const;
    vbide::Ref<vbide::VBComponent> currentComponent() const;
    /// The project that the selected entry belongs to, whatever its kind.
    vbide::Ref<vbide::VBProject> projectOfCurrent() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void watchProjects();
    void watchComponents();
    void draw();
    void addEntries();
    void showTexts();
    void fitColumns();
    void openCurrent();

    vbide::Ref<vbide::VBE> host_;
    Callbacks callbacks_;
    /// Entries store an index into these, plus 1; 0 for none.
    std::vector<vbide::Ref<vbide::VBProject>> projects_;
    std::vector<vbide::Ref<vbide::VBComponent>> components_;
    QTimer redraw_;
    std::vector<fernwick::Subscription> projectEvents_, componentEvents_;
};

} // namespace workbench
