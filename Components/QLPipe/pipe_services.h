#pragma once
// What pipes need of the world, and what they leave for the front end.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/environment.h"
#include "Add-in/platform/files.h"
#include "Add-in/platform/registry.h"
#include <memory>
#include <string>
#include <vector>

namespace qlpipe {

/// What the pipes of a run did, for a front end that reports it. Only pipes write it.
struct TransferRecord {
    /// Places on devices, in words for users, in the order in which they were filled.
    std::vector<std::string> installed;
    /// The package that was written last; "" for none.
    std::string package;
    /// Whether the last transfer succeeded.
    bool succeeded = false;
};

/// They outlive every object that a pipe registers.
struct PipeServices {
    fernwick::FileSystemObject& files;
    fernwick::Classes& classes;
    fernwick::Registry& registry;
    fernwick::Environment& environment;
    /// Root of the installation tree; "" for none.
    std::string installation;
    std::shared_ptr<TransferRecord> record = std::make_shared<TransferRecord>();
};

} // namespace qlpipe
