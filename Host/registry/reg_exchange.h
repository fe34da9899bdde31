#pragma once
// Import and export of .reg files.
#include "Host/registry/reg_text.h"
#include "Host/registry/registry_store.h"
#include <string>
#include <vector>

namespace host {

/// Executes the instructions, in one transaction per store. Errors contain `fileName`, the line and the reason: 70 the
/// store is not writable, 5 for an invalid key or value, 57 a store fails.
void importRegistry(RegistryStore& into, const std::vector<RegInstruction>& instructions, const std::string& fileName);

/// Returns the key with its subtree and values, including those of the installation. Errors: 5 for a path without a
/// root, 53 for a missing key, 57 the store fails.
std::vector<RegInstruction> exportRegistry(RegistryStore& from, const std::string& wholePath);

} // namespace host
