#pragma once
#include "Host/registry/registry_store.h"

namespace cli {

/// Opens the registry store of the user and the machine.
host::RegistryStore openStore();

} // namespace cli
