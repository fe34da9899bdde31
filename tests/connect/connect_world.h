#pragma once
// The add-in and a host in memory that connects it.
#include "tests/lifecycle/lifecycle_world.h"

namespace test {

struct ConnectWorld : ProjectsWorld {
    ConnectWorld() {
        messages.killToolWindow();
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "SOFTWARE\\Quinloft\\AddinPrefs", "StartTutorial", "False");
        trace.effects.clear();
    }
    /// Opens a project in the host that the add-in does not know.
    Ref<TracedProject> open(const std::string& name, const std::string& device = "") {
        const auto project = ProjectsWorld::open(name, device);
        projects.ClearProjectsList();
        return project;
    }
    void connect(vbide::vbext_ConnectMode mode = vbide::vbext_cm_CommandLine) {
        trace.effects.clear();
        connection->IDTExtensibility_OnConnection(vbe, mode, self);
    }
    /// Gives the host fresh bars, without those of an earlier connection.
    void startHostAnew() {
        vbe->bars = bars = hostBars(barTrace);
        items = {};
    }
    Ref<TracedAddIn> sibling(const std::string& progId, bool connected) {
        vbe->addins->list.push_back(basic::make<TracedAddIn>(trace, progId, connected));
        return vbe->addins->list.back();
    }
    Ref<TracedControl> item(const std::string& name) { return basic::make<TracedControl>(trace, name); }
    /// Sources assigned to sinks of projects, files and builds, in order.
    std::vector<std::string> sinks() const { return effectsAfter("sink: ", steps()); }
    /// Items whose sources were assigned to sinks, in order.
    std::vector<std::string> itemSinks() const { return effectsAfter("sink: item ", trace.effects); }
    /// All effects except the assignments of items' sinks.
    std::vector<std::string> steps() const {
        auto all = trace.effects;
        std::erase_if(all, [](const std::string& effect) { return effect.starts_with("sink: item "); });
        return all;
    }
    static std::vector<std::string> effectsAfter(const std::string& beginning, const std::vector<std::string>& all) {
        std::vector<std::string> some;
        for (const auto& effect : all)
            if (effect.starts_with(beginning)) some.push_back(effect.substr(beginning.size()));
        return some;
    }

    fernwick::Connect* connection = &this->Modules::connect;
    Ref<TracedAddIn> self = vbe->addins->list.front();
};

} // namespace test
