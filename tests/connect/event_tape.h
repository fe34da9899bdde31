#pragma once
// Records the host's events, one per line; nested events are indented.
#include "Host/model/host.h"
#include <filesystem>
#include <string>
#include <vector>

namespace test {

/// Created before the add-in is connected, it receives each event first; after `heardLast` it also receives each
/// event's end.
class EventTape {
public:
    explicit EventTape(host::Host& host) : events_(host.Events()) {
        const auto all = events_->VBProjectsEvents();
        keep(events_->FileControlEvents(nullptr)->BeforeLoadFile.connect(
            [this](const auto&, const auto& files) { note("load " + nameOf(files.front())); }));
        keep(all->ItemAdded.connect([this](const auto& project) {
            follow(project);
            begin("added " + project->Name());
        }));
        keep(all->ItemRemoved.connect([this](const auto& project) { begin("removed " + project->Name()); }));
        keep(all->ItemActivated.connect([this](const auto& project) { begin("activated " + project->Name()); }));
        keep(all->ItemRenamed.connect(
            [this](const auto& project, const auto& old) { note("renamed " + old + " " + project->Name()); }));
    }
    void heardLast() {
        const auto all = events_->VBProjectsEvents();
        for (const auto event : {&vbide::VBProjectsEvents::ItemAdded, &vbide::VBProjectsEvents::ItemRemoved,
                                 &vbide::VBProjectsEvents::ItemActivated})
            keep(((*all).*event).connect([this](const auto&) { --depth_; }));
    }
    void note(const std::string& what) { lines.push_back(std::string(depth_, ' ') + what); }

    std::vector<std::string> lines;

private:
    void follow(const vbide::Ref<vbide::VBProject>& project) {
        const auto source = events_->VBComponentsEvents(project);
        const auto log = [this](const char* what) {
            return [this, what](const auto& component) { note(component->Name() + " " + what); };
        };
        keep(source->ItemAdded.connect(log("added")));
        keep(source->ItemRemoved.connect(log("removed")));
        keep(source->ItemActivated.connect(log("activated")));
    }
    void begin(const std::string& what) {
        note(what);
        ++depth_;
    }
    void keep(fernwick::Subscription subscription) { kept_.push_back(std::move(subscription)); }
    static std::string nameOf(const std::string& path) { return std::filesystem::path(path).filename().string(); }

    vbide::Ref<vbide::Events> events_;
    std::vector<fernwick::Subscription> kept_;
    std::size_t depth_ = 0;
};

} // namespace test
