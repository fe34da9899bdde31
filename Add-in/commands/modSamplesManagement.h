#pragma once
// What the registry lists of samples.
#include "Add-in/core/modRegistry2.h"

namespace fernwick {

inline constexpr char kSamplesKey[] = "SOFTWARE\\Quinloft\\VB Toolkit\\Samples";

/// Samples without the nesting that the menu gives them.
class modSamplesManagement {
public:
    struct Sample {
        std::string Name;
        /// The sample's project file.
        std::string fullPath;
    };

    explicit modSamplesManagement(modRegistry2& registry) : registry_(registry) {}

    /// Reads the list anew.
    void InitSamplesList();
    /// Appends the samples of a key of the machine, and then those of the keys below it. Also of keys without a name of
    /// their own, which the menu leaves out.
    void InitSamplesListHelper(const std::string& keyPath);
    int SamplesListLength() const { return int(gSamplesList.size()); }

    std::vector<Sample> gSamplesList;

private:
    modRegistry2& registry_;
};

/// The samples of one key: values with both a name and data.
std::vector<modSamplesManagement::Sample> samplesOf(modRegistry2& registry, const RegistryKey& key);
/// Paths of the keys directly below a key, which has this path.
std::vector<std::string> sampleKeysBelow(modRegistry2& registry, const RegistryKey& key, const std::string& keyPath);

} // namespace fernwick
