#pragma once
// What the compiler knows of the open projects, for completion and parameter help.
#include "Add-in/platform/events.h"
#include "Apps/common/described_libraries.h"
#include "Components/QLToolkit/insight/snapshot.h"
#include "Host/model/host.h"
#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <map>
#include <memory>

namespace workbench {

/// Keeps a snapshot of each project in which something was asked. A snapshot is made in another thread, again when the user
/// pauses after an edit; until then the last one answers.
class ProjectInsight final : public QObject {
public:
    using Component = vbide::Ref<vbide::VBComponent>;
    /// Valid until Qt's loop turns.
    struct Known {
        qltoolkit::Snapshot* snapshot = nullptr;
        int module = -1;
        explicit operator bool() const { return snapshot && module >= 0; }
    };

    /// Descriptions of libraries are read from the installation.
    ProjectInsight(host::Host& host, std::string installation);
    ~ProjectInsight() override;

    /// The last snapshot. If there is none, begins one and waits a moment for it.
    Known of(const Component& component);
    /// The last snapshot, without waiting for one.
    Known present(const Component& component);
    /// Begins a snapshot of the component's project if there is none.
    void prepare(const Component& component);
    /// The present sources of a project.
    struct Program {
        qltoolkit::ProgramInput input;
        std::vector<Component> components; ///< of each source
    };
    Program programOf(const vbide::Ref<vbide::VBProject>& project);
    /// The threads in which snapshots are made.
    QThreadPool& workers() { return workers_; }

private:
    using Key = std::weak_ptr<vbide::VBProject>;
    struct State {
        std::shared_ptr<qltoolkit::Snapshot> snapshot;
        bool isStale = true, isRunning = false;
        std::vector<fernwick::Subscription> watches;
    };
    State& stateOf(const vbide::Ref<vbide::VBProject>& project);
    void changed(const Component& component);
    void begin(const vbide::Ref<vbide::VBProject>& project, State& state);
    void adopt(const Key& project, std::shared_ptr<qltoolkit::Snapshot> snapshot);
    void beginStale();
    qltoolkit::ProgramOptions optionsOf(vbide::VBProject& project);
    std::shared_ptr<const qltoolkit::SourceText> sourceOf(const Component& component);

    host::Host& host_;
    apps::DescribedLibraries libraries_;
    std::map<Key, State, std::owner_less<>> states_;
    std::map<std::weak_ptr<vbide::VBComponent>, std::shared_ptr<const qltoolkit::SourceText>, std::owner_less<>>
        sources_;
    QTimer rest_;
    std::vector<fernwick::Subscription> watches_;
    QThreadPool workers_; ///< the last member: its threads end first
};

/// The name of a component's source in snapshots.
std::string sourceName(vbide::VBComponent& component);

} // namespace workbench
