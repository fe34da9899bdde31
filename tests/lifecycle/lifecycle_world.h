#pragma once
// Projects are opened and closed in a host in memory whose menu and toolbars have been built.
#include "tests/support/add_in_world.h"

namespace test {

/// The host's open projects. A project is a Fernwick project unless its device is "none".
struct ProjectsWorld : AddInWorld<> {
    ProjectsWorld() {
        messages.createToolWindow();
        trace.effects.clear();
    }
    /// Opens a project that the add-in knows.
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
    /// Makes all targets support a control, which is installed.
    void supportLabel() {
        targets.knows.tavlets = {"{1}"};
        registry.set(fernwick::HKEY_CLASSES_ROOT, "CLSID\\{1}\\InprocServer32", "", "/q/Tavlets.dll");
        classes.progIds["{1}"] = "Tavlets.QLLabel";
        classes.libraries["/q/Tavlets.dll"] = {"Tavlets", "/q/Tavlets.dll", "", 1, 0, ""};
    }
    /// Names of the host's open projects.
    std::vector<std::string> openNames() const {
        std::vector<std::string> names;
        for (const auto& project : vbe->projects->list) names.push_back(project->name);
        return names;
    }
};

struct LifecycleWorld : ProjectsWorld {
    LifecycleWorld() {
        buildInterface();
        addIn.gConnectMode = vbide::vbext_cm_Startup;
    }
};

} // namespace test
