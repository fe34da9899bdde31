#pragma once
// Projects coming and going, over a host in memory.
#include "Add-in/build/messages/udocCompileMsgs.h"
#include "Add-in/lifecycle/ProjectSetup.h"
#include "tests/support/fake_targets.h"
#include "tests/support/host_commands.h"
#include "tests/support/traced_platform.h"

namespace test {

struct LifecycleWorld : TracedPlatform {
    LifecycleWorld() {
        addIn.gVBInstance = vbe;
        messages.createToolWindow();
        commands.remove = basic::make<TracedControl>(trace, "host: remove project", [this] { vbe->removeActive(); });
    }
    /// An open project of the host, known to the add-in. It is this system's own unless its device is "none".
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
    /// How many projects the host has open, by name.
    std::vector<std::string> openNames() const {
        std::vector<std::string> names;
        for (const auto& project : vbe->projects->list) names.push_back(project->name);
        return names;
    }
    bool did(const std::string& what) const { return std::count(trace.effects.begin(), trace.effects.end(), what) > 0; }

    FakeTargets targets{classes};
    fernwick::modRegistry2 registry2{registry};
    fernwick::modQLInstallInfo install{registry2, files};
    fernwick::modAddinPrefsManagement prefs{registry2, errors};
    fernwick::AddIn addIn{registry2, errors, environment};
    fernwick::modReferencesManagement references{registry2, classes, errors};
    fernwick::modDeviceManagement devices{classes, errors};
    fernwick::DeviceServices deviceServices{errors, user, classes, registry2, prefs, references, devices};
    TracedCommands commands{trace};
    fernwick::modViewConvertManagement tools{shell, install, errors};
    Ref<fernwick::udocCompileMsgs> window = basic::make<fernwick::udocCompileMsgs>(
        fernwick::CompileMsgsServices{platform, errors, addIn, install, commands, tools});
    Ref<TracedVbe> vbe =
        basic::make<TracedVbe>(trace, [this](const std::string&) { return Ref<fernwick::Object>(window); });
    fernwick::modProjectTemplates templates{addIn, install, files, user, errors};
    fernwick::ProjectServices services{errors, platform, install, addIn, devices, templates};
    fernwick::modProjectHandler projects{services};
    fernwick::modSaveProject save{services, projects};
    fernwick::modCompileErrorManagement messages{addIn, errors, platform};
    fernwick::frmProjectRemoval removal{user, loop, addIn, projects, commands, errors};
    fernwick::frmDesignTargetNormal chooseTarget{deviceServices};
    fernwick::ProjectSetup setup{
        {addIn, loop, deviceServices, projects, save, messages, chooseTarget, removal, commands}};
};

} // namespace test
