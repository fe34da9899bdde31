#include "Apps/fernwick/run/user_store.h"
#include "Apps/common/installation.h"
#include "Host/registry/registry_places.h"
#include "Host/system/environment.h"

namespace cli {

host::RegistryStore openStore() {
    const host::Environment environment;
    return host::RegistryStore{host::usualRegistryPlaces(environment, apps::installationBeside(apps::programFolder()))};
}

} // namespace cli
