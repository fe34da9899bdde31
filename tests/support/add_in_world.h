#pragma once
// The whole add-in over a platform and a host in memory. Every other world adds a few lines.
#include "Add-in/core/connect/Modules.h"
#include "bar_steps.h"
#include "fake_targets.h"
#include "noted_settings.h"
#include "traced_bars.h"
#include "traced_host.h"
#include "traced_platform.h"

namespace test {

/// A platform in memory, and the objects that the add-in takes besides it.
template <class Machine>
struct AddInMachine : Machine {
    NotedSettings noted{this->trace};
    FakeTargets targets{this->classes};
};

/// The add-in's modules under their own names; a name that the platform has too is the platform's. `Machine` is a
/// TracedPlatform, with parts of the test where it needs its own.
template <class Machine = TracedPlatform>
struct AddInWorld : AddInMachine<Machine>, fernwick::Modules {
    using Machine::clipboard;
    using Machine::errors;
    using Machine::platform;
    using Machine::processes;
    using Machine::registry;

    AddInWorld() : Modules(Machine::platform, {&this->errors, &this->noted}) {
        addIn.gVBInstance = vbe;
        vbe->bars = bars;
        barTrace.observer = [this](const std::string& effect) {
            if (auto step = barStep(effect); !step.empty()) this->trace.effect(std::move(step));
        };
        removeCommand()->whenExecuted = [this] { vbe->removeActive(); };
    }
    /// Builds the menu and the toolbars without connecting the add-in.
    void buildInterface() {
        menu.SetUpQuinloftMenu(vbe);
        toolbars.SetupQuinloftToolbar();
        toolbars.SetupSupportToolbar();
        this->trace.effects.clear();
        this->trace.calls = 0;
    }
    /// The host's command that removes the active project.
    TracedItem* removeCommand() { return bars->named("File")->items[3].get(); }
    /// The item that the project importer adds to the utilities.
    void addImporter() { items.gUtilitiesPopup->Controls()->Add()->Caption("Fernwick Project Converter"); }
    bool did(const std::string& what) const {
        return std::count(this->trace.effects.begin(), this->trace.effects.end(), what) > 0;
    }

    fernwick::modRegistry2& registry2 = Modules::registry;
    /// All effects on the bars. `trace` contains only the steps that they belong to.
    Trace barTrace;
    Ref<TracedBars> bars = hostBars(barTrace);
    /// The document of the messages window, which the host creates by its ProgID.
    Ref<fernwick::udocCompileMsgs> window =
        basic::cast<fernwick::udocCompileMsgs>(this->classes.CreateObject("QLVBAddIn.udocCompileMsgs"));
    Ref<TracedVbe> vbe = basic::make<TracedVbe>(this->trace, [this](const std::string& progId) {
        const bool isMessages = progId == "QLVBAddIn.udocCompileMsgs";
        return isMessages ? Ref<fernwick::Object>(window) : this->classes.CreateObject(progId);
    });
};

} // namespace test
