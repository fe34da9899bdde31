#include "Add-in/core/connect/connections.h"

namespace fernwick {

namespace {

class ConnectedAddIn final : public vbide::IDTExtensibility {
public:
    explicit ConnectedAddIn(std::shared_ptr<Modules> modules) : modules_(std::move(modules)) {}
    ~ConnectedAddIn() override { modules_->release(); }

    void IDTExtensibility_OnConnection(const basic::Ref<vbide::VBE>& VBInst, vbide::vbext_ConnectMode ConnectMode,
                                       const basic::Ref<vbide::AddIn>& AddInInst) override {
        modules_->connect.IDTExtensibility_OnConnection(VBInst, ConnectMode, AddInInst);
    }
    void IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode RemoveMode) override {
        modules_->connect.IDTExtensibility_OnDisconnection(RemoveMode);
        modules_->release();
    }
    void IDTExtensibility_OnStartupComplete() override { modules_->connect.IDTExtensibility_OnStartupComplete(); }
    void IDTExtensibility_OnAddInsUpdate() override { modules_->connect.IDTExtensibility_OnAddInsUpdate(); }

private:
    std::shared_ptr<Modules> modules_;
};

} // namespace

basic::Ref<vbide::IDTExtensibility> asAddIn(std::shared_ptr<Modules> modules) {
    return basic::make<ConnectedAddIn>(std::move(modules));
}

Connections::Connections(Platform& platform, const ModuleOverrides& overrides)
    : platform_(platform), overrides_(overrides), current_(newModules()) {}

std::shared_ptr<Modules> Connections::newModules() const { return std::make_shared<Modules>(platform_, overrides_); }

basic::Ref<vbide::IDTExtensibility> Connections::create() {
    if (std::exchange(isUsed_, true)) current_ = newModules();
    return asAddIn(current_);
}

} // namespace fernwick
