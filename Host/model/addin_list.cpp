#include "Host/model/addin_list.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include <algorithm>

namespace host {

ListedAddIn::ListedAddIn(std::weak_ptr<Host> host, std::string progId, std::string description, Create create)
    : host_(std::move(host)),
      progId_(std::move(progId)),
      description_(std::move(description)),
      create_(std::move(create)) {}

void ListedAddIn::Connect(bool connect) {
    if (connect)
        connectAs(vbide::vbext_cm_AfterStartup);
    else
        disconnect(vbide::vbext_dm_UserClosed);
}

void ListedAddIn::connectAs(vbide::vbext_ConnectMode mode) {
    if (connected_) return;
    const auto host = host_.lock();
    if (!host) throwRemoved();
    const auto object = create_();
    object_ = object;
    connected_ = connecting_ = true;
    try {
        object->IDTExtensibility_OnConnection(host, mode, shared_from_this());
    } catch (const basic::RuntimeError&) {
        connecting_ = connected_ = false;
        object_ = nullptr;
        throw;
    }
    connecting_ = false;
    if (connected_) return host->addInsChanged();
    // The add-in disconnected itself in OnConnection; that takes effect now.
    connected_ = true;
    disconnect(vbide::vbext_dm_UserClosed);
}

void ListedAddIn::disconnect(vbide::vbext_DisconnectMode mode) {
    if (!connected_) return;
    connected_ = false;
    if (connecting_) return;
    retired_ = object_;
    object_ = nullptr;
    retired_->IDTExtensibility_OnDisconnection(mode);
    if (const auto host = host_.lock()) host->addInsChanged();
}

void ListedAddIn::startupComplete() {
    if (connected_) object_->IDTExtensibility_OnStartupComplete();
}

/// Not during an add-in's own connection, which has not set it up yet.
void ListedAddIn::addInsChanged() {
    if (!connected_ || connecting_) return;
    const auto object = object_;
    object->IDTExtensibility_OnAddInsUpdate();
}

vbide::Ref<vbide::AddIn> AddInList::Item(const std::string& progId) const {
    if (const auto found = find(progId)) return found;
    throw hostError(basic::kSubscriptOutOfRange);
}

std::vector<vbide::Ref<vbide::AddIn>> AddInList::items() const { return {list_.begin(), list_.end()}; }

std::shared_ptr<ListedAddIn> AddInList::find(const std::string& progId) const {
    const auto found = std::find_if(list_.begin(), list_.end(), [&](const auto& a) { return a->ProgId() == progId; });
    return found == list_.end() ? nullptr : *found;
}

} // namespace host
