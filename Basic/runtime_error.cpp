#include "Basic/runtime_error.h"

namespace basic {

RuntimeError::RuntimeError(int number, std::string description, std::string source, long lastDllError)
    : Number(number),
      Description(description.empty() ? std::string(standardDescription(number)) : std::move(description)),
      Source(std::move(source)),
      LastDllError(lastDllError) {}

} // namespace basic
