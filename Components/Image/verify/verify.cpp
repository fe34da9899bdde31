#include "Components/Image/verify/verify.h"
#include "Components/Image/verify/code_check.h"
#include "Components/Image/verify/table_checks.h"

namespace image {

std::optional<Problem> verify(const CodeImage& code, const FindFunction& runtime) {
    try {
        const Tables tables{code};
        checkTypes(tables);
        checkGlobals(tables);
        checkProcedureHeads(tables);
        checkImports(tables, runtime);
        checkClasses(tables);
        checkModules(tables);
        CodeCheck{tables}.run();
        return std::nullopt;
    } catch (Problem& problem) { return std::move(problem); }
}

} // namespace image
