#pragma once
// The components of a project.
#include "Basic/case_folding.h"
#include "Host/model/component.h"
#include <unordered_map>
#include <vector>

namespace host {

class Components final : public vbide::VBComponents {
public:
    explicit Components(Project& project) : project_(&project) {}

    int Count() const override;
    vbide::Ref<vbide::VBComponent> Item(int index) const override;
    vbide::Ref<vbide::VBComponent> Item(const std::string& name) const override;
    std::vector<vbide::Ref<vbide::VBComponent>> items() const override;
    vbide::Ref<vbide::VBComponent> Add(vbide::vbext_ComponentType type) override;
    vbide::Ref<vbide::VBComponent> AddFile(const std::string& path) override;
    void Remove(const vbide::Ref<vbide::VBComponent>& component) override;
    vbide::StartUp StartUpObject() const override;
    void StartUpObject(const vbide::StartUp& startUp) override;

    // ---- for the host ----
    const std::vector<std::shared_ptr<Component>>& list() const { return list_; }
    std::shared_ptr<Component> named(const std::string& name) const;
    /// Error 32813 if a component other than this one has the name.
    void requireFree(const std::string& name, const Component& component) const;
    /// Inserts a component without an event. Returns false if its name is taken.
    bool insert(const std::shared_ptr<Component>& component);
    /// Adds a component from its text and the records that it refers to, without a file. Errors: 321 not a source of this kind; 32813 the name is taken.
    std::shared_ptr<Component> addSource(vbide::vbext_ComponentType type, const std::string& name, std::string bytes,
                                         const UnsavedRecords& records = {});
    /// Must be called after a component was renamed.
    void renamed(Component& component, const std::string& oldName);
    /// Detaches the collection from its project. All members of these objects raise errors from now on.
    void close();

private:
    std::shared_ptr<Project> project() const;
    std::string freeName(std::string_view stem) const;
    vbide::Ref<vbide::VBComponent> addTemplate(const std::shared_ptr<Component>& component);
    vbide::Ref<vbide::VBComponent> addNew(const std::shared_ptr<Component>& component);

    void takeNameOfAnnounced(Component& component);

    Project* project_;
    /// The new component whose ItemAdded is being raised.
    std::shared_ptr<Component> announced_;
    std::vector<std::shared_ptr<Component>> list_;
    std::unordered_map<std::string, std::shared_ptr<Component>, basic::NoCaseHash, basic::NoCaseEqual> byName_;
};

} // namespace host
