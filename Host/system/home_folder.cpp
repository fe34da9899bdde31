#include "Host/system/home_folder.h"
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace host {

std::string homeFolder() {
    const auto* home = std::getenv("HOME");
    if (home && *home) return home;
    const auto* user = ::getpwuid(::getuid());
    return user && user->pw_dir && *user->pw_dir ? user->pw_dir : "/";
}

} // namespace host
