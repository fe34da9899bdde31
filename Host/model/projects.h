#pragma once
// The open projects.
#include "Add-in/platform/host.h"
#include "Host/files/journal_file.h"
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace host {

class Host;
class Project;

class Projects final : public vbide::VBProjects {
public:
    explicit Projects(Host& host) : host_(&host) {}

    int Count() const override;
    vbide::Ref<vbide::VBProject> Item(int index) const override;
    std::vector<vbide::Ref<vbide::VBProject>> items() const override;
    vbide::Ref<vbide::VBProject> AddFromFile(const std::string& path, bool exclusive) override;
    vbide::Ref<vbide::VBProject> AddFromTemplate(const std::string& path, bool exclusive) override;
    void Remove(const vbide::Ref<vbide::VBProject>& project) override;
    std::string GroupOf(const vbide::Ref<vbide::VBProject>& project) const override;

    // ---- for the host ----
    /// Adds a new project with an empty form, like the menu command.
    vbide::Ref<vbide::VBProject> addNew();
    /// Adds a project from its unsaved text. `fill` restores its components before any handler sees the project.
    /// Error 55 if a project with its file is open.
    vbide::Ref<vbide::VBProject> addRestored(const JournalEntry& entry, const std::function<void(Project&)>& fill);
    /// The group whose projects are being opened; "" for none.
    const std::string& openingGroup() const { return openingGroup_; }
    void removeAll();
    bool holds(const vbide::Ref<vbide::VBProject>& project) const;
    /// Detaches the collection from the destroyed host.
    void close() { host_ = nullptr; }

private:
    std::shared_ptr<Host> host() const;
    std::shared_ptr<Project> open(const std::string& path);
    void requireNotOpen(const std::string& path) const;
    std::shared_ptr<Project> beginLoading(const std::string& path);
    bool makeRoomFor(const std::string& path);
    vbide::Ref<vbide::VBProject> openComponent(const std::string& path);
    vbide::Ref<vbide::VBProject> openGroup(const std::string& path, const std::string& bytes);
    void add(const std::shared_ptr<Project>& project);
    std::string freeName() const;
    bool isNameTaken(const std::string& name) const;

    Host* host_;
    std::vector<std::shared_ptr<Project>> list_;
    std::string openingGroup_;
};

} // namespace host
