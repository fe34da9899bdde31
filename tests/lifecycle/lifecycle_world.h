#pragma once
// Projects that are opened and closed, over a host in memory whose menu and toolbars are built.
#include "tests/support/add_in_world.h"

namespace test {

/// The open projects of the host. A project is this system's own unless its device is "none".
struct ProjectsWorld : AddInWorld<> {
    ProjectsWorld() {
        messages.createToolWindow();
        trace.effects.clear();
    }
    /// An open project that the add-in knows.
    Ref<TracedProject> open(const std::string& name, const std::string& device = "") {
        const auto path = "/p/" + name + ".vbp";
        files.files[path] = {};
        const auto project = basic::make<TracedProject>(trace, name, path);
        vbe->projects->list.push_back(project);
        vbe->active = project;
        if (device != "none") {
            set(project, "IsQuinloftProject", "True");
            set(project, "ProjectVersion", "3.5");
        }
        if (!device.empty() && device != "none") set(project, "TargetDevice", device);
        projects.AddToProjectsList(project);
        trace.effects.clear();
        return project;
    }
    static void set(const Ref<TracedProject>& project, const std::string& key, const std::string& value) {
        project->properties[{"Quinloft Global", key}] = value;
    }
    /// Names of the host's open projects.
    std::vector<std::string> openNames() const {
        std::vector<std::string> names;
        for (const auto& project : vbe->projects->list) names.push_back(project->name);
        return names;
    }
};

struct LifecycleWorld : ProjectsWorld {
    LifecycleWorld() { buildInterface(); }
};

} // namespace test
