#pragma once
// The add-in connected at the desktop; the test raises the host's events one by one.
#include "connect_world.h"

namespace test {

struct EventsWorld : ConnectWorld {
    EventsWorld() {
        targets.known = {"Palm-1"};
        connect(vbide::vbext_cm_Startup);
        registry.set(fernwick::HKEY_CURRENT_USER, "SOFTWARE\\Quinloft\\AddinPrefs", "POS:Quinloft Utilities", "1");
        registry.written = [this](const std::string& name) {
            if (name == "POS:Quinloft Utilities") trace.effect("save toolbars");
            if (name == "ProjectName1") trace.effects.push_back("save recent projects");
        };
        trace.effects.clear();
    }
    ~EventsWorld() {
        for (const auto& component : ofHost_) component->vbe = nullptr;
    }
    /// A project that the host has opened and not reported yet. It is a Fernwick project unless its device is "none".
    Ref<TracedProject> opened(const std::string& name, const std::string& device = "Palm-1") {
        const auto project = ProjectsWorld::open(name, device);
        projects.RemoveFromProjectsList(project);
        set(project, "TwipsPerPixelX", "15");
        set(project, "TwipsPerPixelY", "15");
        project->components->added = [this](const auto& component) {
            take(component);
            vbe->events->components->ItemAdded.raise(component);
        };
        trace.effects.clear();
        return project;
    }
    /// Returns the effects of the event.
    std::vector<std::string> raiseAdded(const Ref<TracedProject>& project) {
        trace.effects.clear();
        vbe->events->projects->ItemAdded.raise(project);
        return trace.effects;
    }
    std::vector<std::string> raiseRemoved(const Ref<TracedProject>& project) {
        trace.effects.clear();
        vbe->events->projects->ItemRemoved.raise(project);
        return trace.effects;
    }
    /// A project that the add-in has been notified of.
    Ref<TracedProject> added(const std::string& name, const std::string& device = "Palm-1") {
        const auto project = opened(name, device);
        raiseAdded(project);
        trace.effects.clear();
        return project;
    }
    /// A component that the host has added to the project and not reported yet.
    Ref<TracedComponent> component(const Ref<TracedProject>& project, const std::string& name,
                                   vbide::vbext_ComponentType type, const std::string& file = {}) {
        const auto made = project->add(name, file, type);
        take(made);
        return made;
    }
    std::vector<std::string> raiseAdded(const Ref<TracedComponent>& component) {
        trace.effects.clear();
        vbe->events->components->ItemAdded.raise(component);
        return trace.effects;
    }
    std::vector<std::string> turn() {
        trace.effects.clear();
        loop.turn();
        return trace.effects;
    }

private:
    void take(const Ref<TracedComponent>& component) {
        component->vbe = vbe;
        ofHost_.push_back(component);
    }
    /// They refer to the host, which owns them.
    std::vector<Ref<TracedComponent>> ofHost_;
};

} // namespace test
