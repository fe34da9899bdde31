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
    /// What the user does with an entry.
    struct Callbacks {
        std::function<void(vbide::Ref<vbide::VBProject>)> activateProject;
        std::function<void(vbide::Ref<vbide::VBComponent>)> openCode;
        /// The tree was drawn, as after every change of projects and components.
        std::function<void()> drawn = [] {};
    };

    ProjectExplorer(vbide::Ref<vbide::VBE> host, Callbacks callbacks);

    /// The components that are drawn may be others, or dirty; drawn when Qt's loop turns.
    void refreshSoon() { redraw_.start(); }
    /// What the chosen entry stands for; Nothing for another kind of entry.
    vbide::Ref<vbide::VBProject> currentProject() const;
    vbide::Ref<vbide::VBComponent> currentComponent() const;

private:
    void watchProjects();
    void watchComponents();
    void draw();
    void addEntries();
    void showTexts();
    void openCurrent();

    vbide::Ref<vbide::VBE> host_;
    Callbacks callbacks_;
    /// Entries keep their number among these, 0 for none.
    std::vector<vbide::Ref<vbide::VBProject>> projects_;
    std::vector<vbide::Ref<vbide::VBComponent>> components_;
    QTimer redraw_;
    std::vector<fernwick::Subscription> projectEvents_, componentEvents_;
};

} // namespace workbench
