#pragma once
// Results of earlier checks and compiles, so that an unchanged project is not checked or compiled again.
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace cli {

struct CheckKey {
    std::uint64_t project = 0; ///< the same for the same project, whatever it contains
    std::uint64_t content = 0; ///< of all that the results depend on
};

/// One file for each project. It can be shared by several programs, and deleted or damaged at any time: what cannot be
/// read or written counts as not stored.
class CheckCache {
public:
    /// In `folder`, which is created when something is stored; "" stores nothing.
    explicit CheckCache(std::filesystem::path folder) : folder_(std::move(folder)) {}

    [[nodiscard]] std::optional<std::string> find(const CheckKey& key) const;
    /// Replaces the results of the project, and removes those that were not used for a month.
    void store(const CheckKey& key, std::string_view results) const;

private:
    [[nodiscard]] std::filesystem::path fileOf(const CheckKey& key) const;
    void removeOld() const;

    std::filesystem::path folder_;
};

/// The folder below $XDG_CACHE_HOME, or ~/.cache; "" for a user without a home.
[[nodiscard]] std::filesystem::path checkCacheFolder();

} // namespace cli
