#include "Apps/fernwick/output/file_errors.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Basic/runtime_error.h"
#include <filesystem>

namespace cli {

int statusOfOpening(int number) {
    switch (number) {
    case basic::kFileNotFound:
    case basic::kPathNotFound: return kWrongUse;
    case basic::kPermissionDenied:
    case basic::kPathFileAccessError:
    case basic::kDeviceIOError: return kMachineTrouble;
    default: return kProjectErrors;
    }
}

int statusOfNamedFile(const std::string& path, int number) {
    std::error_code unknown;
    return std::filesystem::is_directory(path, unknown) ? int(kWrongUse) : statusOfOpening(number);
}

std::string withFile(const std::string& path, const std::string& description) {
    return description.starts_with(path + ":") ? description : path + ": " + description;
}

} // namespace cli
