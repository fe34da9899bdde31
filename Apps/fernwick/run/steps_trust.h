#pragma once
// Whether a project's compile steps may run.
#include "Apps/common/trusted_folders.h"
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/console.h"
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// A project can name any command line, so the first time that a folder's project would run one, the user is asked
/// with the exact commands. Folders that were trusted are kept in the user's store. Without a terminal nothing runs
/// unless --trust-steps says so.
class StepsTrust {
public:
    StepsTrust(const Options& options, Console& console) : options_(options), console_(console) {}

    /// The store of trusted folders, and all steps of the project: what the question shows.
    void prepare(fernwick::Registry& registry, std::vector<std::string> steps);
    /// Whether this command line may run in this folder. Says why not.
    bool mayRun(const std::string& commandLine, const std::string& folder);

private:
    bool decide(const std::string& folder);
    bool askUser(const std::string& folder);

    const Options& options_;
    Console& console_;
    std::optional<apps::TrustedFolders> folders_;
    std::vector<std::string> steps_;
    std::optional<bool> decided_;
};

} // namespace cli
