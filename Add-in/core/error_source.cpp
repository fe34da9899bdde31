#include "Add-in/core/error_source.h"
#include "Basic/runtime_error.h"

namespace fernwick {

namespace {
/// The source of an error that no component has put its name to: it is ours.
const std::string kUnnamedSource = basic::RuntimeError(basic::kInvalidProcedureCall).Source;
} // namespace

std::string errorSource(const std::string& source, const App& app) {
    return source == kUnnamedSource ? app.Title : source;
}

} // namespace fernwick
