#include "Host/system/environment.h"
#include "Host/files/system_error.h"
#include <cerrno>
#include <cstdlib>

namespace host {

std::string Environment::GetEnvironmentVariable(const std::string& name) const {
    const auto* value = std::getenv(name.c_str());
    return value ? value : "";
}

void Environment::SetEnvironmentVariable(const std::string& name, const std::string& value) {
    if (::setenv(name.c_str(), value.c_str(), 1) == 0) return;
    if (errno == EINVAL) throw hostError(basic::kInvalidProcedureCall, "\"" + name + "\" is not a valid variable name");
    throw systemError(errno, "cannot be set", name);
}

} // namespace host
