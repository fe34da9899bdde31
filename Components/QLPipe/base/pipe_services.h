#pragma once
// The pipes' dependencies, and their results for the front end.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/environment.h"
#include "Add-in/platform/event_loop.h"
#include "Add-in/platform/files.h"
#include "Add-in/platform/interaction.h"
#include "Add-in/platform/registry.h"
#include <memory>
#include <string>
#include <vector>

namespace qlpipe {

/// What the pipes of a run did, for reports. Only pipes write it.
struct TransferRecord {
    /// Locations on devices, for users, in the order of the transfers.
    std::vector<std::string> installed;
    /// Path of the last package written, or "".
    std::string package;
    /// Key and location of the device of the last transfer, and whether it lacks the runtime that the application needs.
    std::string device, location;
    bool lacksRuntime = false;
    /// Whether the last transfer succeeded.
    bool succeeded = false;
};

/// Must outlive all objects created by the pipes.
struct PipeServices {
    fernwick::Interaction& user;
    fernwick::EventLoop& loop;
    fernwick::FileSystemObject& files;
    fernwick::Classes& classes;
    fernwick::Registry& registry;
    fernwick::Environment& environment;
    /// Root of the installation tree, or "" without one.
    std::string installation;
    std::shared_ptr<TransferRecord> record = std::make_shared<TransferRecord>();
};

} // namespace qlpipe
