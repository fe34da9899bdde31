#pragma once
// The add-in connected to a host in memory, with the interface above it told in the trace.
#include "Add-in/core/connect/Connect.h"
#include "tests/lifecycle/lifecycle_world.h"

namespace test {

struct ConnectWorld : LifecycleWorld {
    ConnectWorld() {
        messages.killToolWindow();
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "SOFTWARE\\Quinloft\\AddinPrefs", "StartTutorial", "False");
        trace.effects.clear();
    }
    /// A project that the host has open and the add-in has not met.
    Ref<TracedProject> open(const std::string& name, const std::string& device = "") {
        const auto project = LifecycleWorld::open(name, device);
        projects.ClearProjectsList();
        return project;
    }
    void connect(vbide::vbext_ConnectMode mode = vbide::vbext_cm_CommandLine) {
        trace.effects.clear();
        connection->IDTExtensibility_OnConnection(vbe, mode, self);
    }
    Ref<TracedAddIn> sibling(const std::string& progId, bool connected) {
        vbe->addins->list.push_back(basic::make<TracedAddIn>(trace, progId, connected));
        return vbe->addins->list.back();
    }
    Ref<TracedControl> item(const std::string& name) { return basic::make<TracedControl>(trace, name); }
    /// What the sinks were assigned, in the order of their assignment.
    std::vector<std::string> sinks() const {
        std::vector<std::string> all;
        for (const auto& effect : trace.effects)
            if (effect.starts_with("sink: ")) all.push_back(effect.substr(6));
        return all;
    }

    fernwick::CommandItems items;
    Ref<TracedAddIn> self = vbe->addins->list.front();
    fernwick::modDependencyManagement dependencies{{platform, errors, install, messages, commands}};
    fernwick::modProcessControl steps{errors, platform};
    fernwick::frmSaveProjectFiles saveFiles{user, addIn};
    fernwick::frmCompileWarning compileWarning{user, prefs, errors};
    fernwick::frmCompile compile{
        {platform, errors, registry2, install, projects, messages, dependencies, steps, saveFiles, commands}};
    fernwick::frmValidate validate{{platform, errors, registry2, install, services, deviceServices, messages, compile}};
    fernwick::PipeServices pipes{platform, errors, install, devices};
    fernwick::frmSendToDevice send{
        pipes, {addIn, prefs, projects, messages, dependencies, compile, compileWarning, validate, commands}};
    fernwick::frmSendRuntimeToDevice sendRuntime{pipes};
    fernwick::modViewConvertManagement tools{shell, install, errors};
    fernwick::modHelpManagement help{platform, install, errors};
    fernwick::frmAbout about{platform, errors};
    fernwick::SampleOpening samples{{platform, errors, addIn, save, commands}};
    Ref<fernwick::Connect> connection = basic::make<fernwick::Connect>(
        fernwick::ConnectServices{platform, errors,   prefs,       addIn,   references, devices,  deviceServices,
                                  items,    projects, messages,    removal, setup,      commands, install,
                                  compile,  send,     sendRuntime, tools,   help,       about,    samples});
};

} // namespace test
