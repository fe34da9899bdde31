#pragma once
// Projects without messages: as long as none of their files changes, they need not even be read.
#include "Apps/common/checked_project.h"
#include "Apps/fernwick/checks/check_cache.h"
#include "Apps/fernwick/options/options.h"
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// A check that had nothing to report.
struct CleanCheck {
    apps::CheckedProject project;             ///< only its path, sources, resource file and code page
    std::vector<std::string> absoluteSources; ///< the paths of the sources
    std::vector<std::uint32_t> lines;         ///< of each source
};

class CleanChecks {
public:
    /// `begin`: nothing was read before.
    explicit CleanChecks(const Options& options,
                         std::chrono::system_clock::time_point begin = std::chrono::system_clock::now());

    /// Nothing for a project that was not clean, or if its files or folders may have changed since. `path` is that of the
    /// project file as it is given.
    [[nodiscard]] std::optional<CleanCheck> find(const std::string& path) const;
    /// `lines`: of each source. A project with recent changes is not stored, because another change within a clock tick
    /// would not show.
    void store(const apps::CheckedProject& project, const std::vector<std::uint32_t>& lines) const;

private:
    [[nodiscard]] CheckKey keyOf(const std::string& path) const;

    const Options& options_;
    std::chrono::system_clock::time_point begin_;
    CheckCache cache_;
};

} // namespace cli
