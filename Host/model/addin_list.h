#pragma once
// The listed add-ins, and their connections.
#include "Add-in/platform/host.h"
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace host {

class Host;

class ListedAddIn final : public vbide::AddIn, public std::enable_shared_from_this<ListedAddIn> {
public:
    using Create = std::function<vbide::Ref<vbide::IDTExtensibility>()>;
    ListedAddIn(std::weak_ptr<Host> host, std::string progId, std::string description, Create create);

    std::string ProgId() const override { return progId_; }
    std::string Description() const override { return description_; }
    bool Connect() const override { return connected_; }
    void Connect(bool connect) override;

    // ---- for the host ----
    void connectAs(vbide::vbext_ConnectMode mode);
    void disconnect(vbide::vbext_DisconnectMode mode);
    void startupComplete();
    void addInsChanged();

private:
    std::weak_ptr<Host> host_;
    std::string progId_, description_;
    Create create_;
    vbide::Ref<vbide::IDTExtensibility> object_;
    /// The object of the last connection, kept alive because one of its handlers may be running.
    vbide::Ref<vbide::IDTExtensibility> retired_;
    bool connected_ = false, connecting_ = false;
};

class AddInList final : public vbide::Addins {
public:
    int Count() const override { return int(list_.size()); }
    vbide::Ref<vbide::AddIn> Item(const std::string& progId) const override;
    std::vector<vbide::Ref<vbide::AddIn>> items() const override;

    // ---- for the host ----
    void add(std::shared_ptr<ListedAddIn> addIn) { list_.push_back(std::move(addIn)); }
    const std::vector<std::shared_ptr<ListedAddIn>>& list() const { return list_; }
    std::shared_ptr<ListedAddIn> find(const std::string& progId) const;

private:
    std::vector<std::shared_ptr<ListedAddIn>> list_;
};

} // namespace host
