#include "Apps/common/version.h"

namespace apps {

const char* const kVersion = FERNWICK_VERSION;

} // namespace apps
