#pragma once
// Bringing .reg files into the stores, and out of them.
#include "Host/registry/reg_text.h"
#include "Host/registry/registry_store.h"
#include <string>
#include <vector>

namespace host {

/// Carries out the instructions in each store as a whole or not at all. Errors name `fileName`, the line and the reason:
/// 70 where the store may not be written, 5 for a key or value that no store can have, 57 when a store fails.
void importRegistry(RegistryStore& into, const std::vector<RegInstruction>& instructions, const std::string& fileName);

/// The key with all that lies below it and its values, the installation's included. Errors: 5 for a path that begins
/// with no root, 53 for a key that is not there, 57 when the store fails.
std::vector<RegInstruction> exportRegistry(RegistryStore& from, const std::string& wholePath);

} // namespace host
