#include "Add-in/core/error_source.h"
#include "Basic/runtime_error.h"

namespace fernwick {

namespace {
/// The source of an error that no component has set: the add-in's own.
const std::string kUnnamedSource = basic::RuntimeError(basic::kInvalidProcedureCall).Source;
} // namespace

std::string errorSource(const std::string& source, const App& app) {
    return source == kUnnamedSource ? app.Title : source;
}

} // namespace fernwick
