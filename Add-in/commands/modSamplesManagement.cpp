#include "Add-in/commands/modSamplesManagement.h"

namespace fernwick {

std::vector<modSamplesManagement::Sample> samplesOf(modRegistry2& registry, const RegistryKey& key) {
    std::vector<modSamplesManagement::Sample> samples;
    for (auto& [name, text] : registry.EnumValues(key.handle()).value_or(std::vector<NamedRegistryText>{}))
        if (!name.empty() && !text.empty()) samples.push_back({std::move(name), std::move(text)});
    return samples;
}

std::vector<std::string> sampleKeysBelow(modRegistry2& registry, const RegistryKey& key, const std::string& keyPath) {
    std::vector<std::string> paths;
    for (const auto& name : registry.EnumKeys(key.handle()).value_or(std::vector<std::string>{}))
        if (!name.empty()) paths.push_back(keyPath + "\\" + name);
    return paths;
}

void modSamplesManagement::InitSamplesList() {
    gSamplesList.clear();
    InitSamplesListHelper(kSamplesKey);
}

void modSamplesManagement::InitSamplesListHelper(const std::string& keyPath) {
    const RegistryKey key{registry_, registry_.OpenKey(HKEY_LOCAL_MACHINE, keyPath, KEY_READ)};
    if (!key) return;
    for (auto& sample : samplesOf(registry_, key)) gSamplesList.push_back(std::move(sample));
    for (const auto& below : sampleKeysBelow(registry_, key, keyPath)) InitSamplesListHelper(below);
}

} // namespace fernwick
