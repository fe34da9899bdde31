#include "Components/QLToolkit/code/procedure_code.h"

namespace qltoolkit {

namespace {

using image::Op;
using image::Operand;

constexpr std::uint32_t kReturn = image::encode(Op::Return);

/// Whether an instruction does nothing but write its operand A, without reading it.
bool onlyWritesA(Op op) {
    switch (op) {
    case Op::AppendText:
    case Op::StoreVariant:
    case Op::FixKind:
    case Op::ReDimVariant:
    case Op::EraseVariant: return false;
    default: break;
    }
    const auto& info = image::infoOf(op);
    switch (info.operands[0]) {
    case Operand::WriteLong:
    case Operand::WriteDouble:
    case Operand::WriteCurrency:
    case Operand::WriteNumber:
    case Operand::WriteText:
    case Operand::WriteVariant:
    case Operand::WriteValue: return info.extra != image::Extra::Jump;
    case Operand::Result:
    case Operand::ResultVariant: return true;
    default: return false;
    }
}

} // namespace

bool ProcedureCode::redirect(std::uint32_t from, std::uint32_t to) {
    if (last_ == kUnknown || lastLabel_ == here()) return false;
    const bool isNewStatement =
        (!lines_.empty() && lines_.back().code == here()) || (!statements_.empty() && statements_.back() == here());
    const image::Word word{words_[last_]};
    const auto op = static_cast<Op>(word.op);
    if (isNewStatement || word.a != from || !onlyWritesA(op)) return false;
    words_[last_] = (words_[last_] & ~0xFF00U) | to << 8;
    return true;
}

/// Fills in the distances. A jump to the end of the procedure returns at once.
void ProcedureCode::completeJumps() {
    for (const auto& jump : jumps_) {
        const std::uint32_t target = labels_[static_cast<std::size_t>(jump.label)];
        const bool isPlain = image::Word(words_[jump.from]).op == std::uint8_t(Op::Jump);
        if (isPlain && target < here() && words_[target] == kReturn)
            words_[jump.from] = words_[jump.word] = kReturn;
        else
            words_[jump.word] = target - jump.from;
    }
}

void ProcedureCode::finish(image::Procedure procedure, std::uint32_t number, bool resumes) {
    completeJumps();
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
