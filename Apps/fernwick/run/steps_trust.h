#pragma once
// Whether a project's compile steps may run.
#include "Add-in/core/trusted_folders.h"
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/console.h"
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// A project can contain any command line, so the user is asked, with the exact commands, before a folder's project
/// runs one for the first time. Trusted folders are stored for the user. Without a terminal, --trust-steps is needed.
class StepsTrust {
public:
    StepsTrust(const Options& options, Console& console) : options_(options), console_(console) {}

    /// Sets the store of trusted folders and the steps that the question shows.
    void prepare(fernwick::Registry& registry, std::vector<std::string> steps);
    /// Returns whether this command line may run in this folder, and prints why not.
    bool mayRun(const std::string& commandLine, const std::string& folder);

private:
    bool decide(const std::string& folder);
    bool askUser(const std::string& folder);

    const Options& options_;
    Console& console_;
    std::optional<fernwick::TrustedFolders> folders_;
    std::vector<std::string> steps_;
    std::optional<bool> decided_;
};

} // namespace cli
