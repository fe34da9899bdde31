#pragma once
// The samples listed in the registry.
#include "Add-in/core/modRegistry2.h"

namespace fernwick {

inline constexpr char kSamplesKey[] = "SOFTWARE\\Quinloft\\VB Toolkit\\Samples";

/// A flat list of all samples.
class modSamplesManagement {
public:
    struct Sample {
        std::string Name;
        /// The sample's project file.
        std::string fullPath;
    };

    explicit modSamplesManagement(modRegistry2& registry) : registry_(registry) {}

    /// Reads the list again.
    void InitSamplesList();
    /// Appends the samples of a key of the machine, then those of its subkeys, including keys without a caption, which
    /// the menu skips.
    void InitSamplesListHelper(const std::string& keyPath);
    int SamplesListLength() const { return int(gSamplesList.size()); }

    std::vector<Sample> gSamplesList;

private:
    modRegistry2& registry_;
};

/// The samples of one key: values with both a name and data.
std::vector<modSamplesManagement::Sample> samplesOf(modRegistry2& registry, const RegistryKey& key);
/// Paths of the direct subkeys of a key, whose path is `keyPath`.
std::vector<std::string> sampleKeysBelow(modRegistry2& registry, const RegistryKey& key, const std::string& keyPath);

} // namespace fernwick
