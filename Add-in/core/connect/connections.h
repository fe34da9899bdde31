#pragma once
// The add-in as the host creates it: a new object for each connection.
#include "Add-in/core/connect/Modules.h"

namespace fernwick {

/// Returns the add-in as an object of the host, for one connection. A disconnection, or the end of the object, releases
/// the add-in from all events; the modules live as long as the object, because one of their handlers may be running.
basic::Ref<vbide::IDTExtensibility> asAddIn(std::shared_ptr<Modules> modules);

/// The successive add-ins of one host. Each connection begins with new modules, so that it inherits nothing from earlier
/// ones.
class Connections {
public:
    /// `platform` and `overrides` must outlive the add-ins.
    explicit Connections(Platform& platform, const ModuleOverrides& overrides = {});

    /// The add-in of the last connection; before the first, the one that will be connected first.
    Modules& current() { return *current_; }
    const Modules& current() const { return *current_; }
    /// Creates the object of a new connection.
    basic::Ref<vbide::IDTExtensibility> create();

private:
    std::shared_ptr<Modules> newModules() const;

    Platform& platform_;
    ModuleOverrides overrides_;
    std::shared_ptr<Modules> current_;
    bool isUsed_ = false;
};

} // namespace fernwick
