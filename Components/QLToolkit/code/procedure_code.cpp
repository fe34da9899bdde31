#include "Components/QLToolkit/code/procedure_code.h"

namespace qltoolkit {

void ProcedureCode::finish(image::Procedure procedure, std::uint32_t number, bool resumes) {
    for (const auto& jump : jumps_) words_[jump.word] = labels_[static_cast<std::size_t>(jump.label)] - jump.from;
    procedure.code = static_cast<std::uint32_t>(module_.code.size());
    procedure.words = here();
    procedure.numbers = static_cast<std::uint32_t>(module_.numbers.size());
    procedure.lines = lines_;
    if (resumes) procedure.statements = statements_;
    for (const auto& fix : fixes_) module_.fixes.push_back({procedure.code + fix.word, fix.kind});
    module_.code.insert(module_.code.end(), words_.begin(), words_.end());
    module_.numbers.insert(module_.numbers.end(), numbers_.begin(), numbers_.end());
    module_.procedures.push_back({number, std::move(procedure)});
}

} // namespace qltoolkit
