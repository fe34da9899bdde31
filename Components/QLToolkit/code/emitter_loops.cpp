// Loops.
#include "Components/QLToolkit/code/emitter.h"

namespace qltoolkit {

using image::Op;

namespace {

/// The step, if it is a small number that is written there.
std::optional<int> smallStep(const Expr* step) {
    if (!step) return 1;
    const bool isNegative = step->kind == ExprKind::Unary && step->op() == Operator::Negate;
    const Expr& number = isNegative ? *as<UnaryExpr>(*step).operand : *step;
    if (number.kind != ExprKind::Integer) return std::nullopt;
    const auto value = as<IntegerExpr>(number).value;
    if (value < 1 || value > 127) return std::nullopt;
    return static_cast<int>(isNegative ? -value : value);
}

} // namespace

void Emitter::doLoop(const DoStmt& loop) {
    if (loop.head != LoopTest::None) return whileLoop(loop.condition, loop.head == LoopTest::While, loop.body, true);
    const Label begin = out_.label(), exit = out_.label();
    out_.place(begin);
    doExits_.push_back(exit);
    block(loop.body);
    doExits_.pop_back();
    if (loop.foot == LoopTest::None) {
        out_.jump(Op::Jump, begin);
    } else {
        if (loop.condition) beginLine(loop.condition->pos);
        condition(*loop.condition, loop.foot == LoopTest::While, begin);
    }
    out_.place(exit);
}

/// The condition is tested at the head once, and then at the foot.
void Emitter::whileLoop(const Expr* test, bool when, const Block& body, std::optional<bool> isDo) {
    const Label begin = out_.label(), exit = out_.label();
    condition(*test, !when, exit);
    out_.place(begin);
    if (isDo) doExits_.push_back(exit);
    block(body);
    if (isDo) doExits_.pop_back();
    beginLine(test->pos);
    condition(*test, when, begin);
    out_.place(exit);
}

void Emitter::forLoop(const ForStmt& loop) {
    const Place counter = place(*loop.variable);
    const auto step = smallStep(loop.step);
    const ValueType type = counter.type.value;
    const bool isFast =
        counter.kind == PlaceKind::Slot && step && (type == ValueType::Long || type == ValueType::Integer);
    if (isFast) return fastFor(loop, counter, *step);
    generalFor(loop, counter);
}

void Emitter::fastFor(const ForStmt& loop, const Place& counter, int step) {
    const Type type = counter.type;
    const Value from = value(*loop.from, type);
    const auto slotType = layout_.slotTypeOf(type);
    const auto limit = slots_.hidden(slotType);
    into(*loop.to, type, limit);
    (void)moved({type, from.slot, false}, counter.slot);
    const Label body = out_.label(), exit = out_.label();
    const auto entered = beginLoopCheck();
    clearObjects(statementMark_);
    slots_.releaseTo(statementMark_);
    out_.jump(Op::JumpLessLong, exit, step > 0 ? limit : counter.slot, step > 0 ? counter.slot : limit);
    out_.place(body);
    forExits_.push_back(exit);
    block(loop.body);
    forExits_.pop_back();
    beginNext(loop.pos, loop.lines);
    checkLoop(entered);
    out_.jump(type.value == ValueType::Integer ? Op::ForInteger : Op::ForLong, body, counter.slot, limit,
              static_cast<std::uint32_t>(step));
    out_.place(exit);
    endLoopCheck(entered);
    slots_.giveBack(limit, slotType);
}

/// Where a jump may lead into a loop, a slot shows whether it was entered at its head.
std::optional<std::uint32_t> Emitter::beginLoopCheck() {
    if (!names_->hasLabels() && !resumes_) return std::nullopt;
    const auto slot = slots_.hidden({image::BaseType::Long, {}, 0});
    out_.emitWide(Op::LoadShort, slot, 0xFFFF);
    return slot;
}

void Emitter::checkLoop(std::optional<std::uint32_t> entered) {
    if (entered) out_.emit(Op::LoopEntered, *entered);
}

void Emitter::endLoopCheck(std::optional<std::uint32_t> entered) {
    if (!entered) return;
    out_.emitWide(Op::LoadShort, *entered, 0);
    slots_.giveBack(*entered, {image::BaseType::Long, {}, 0});
}

/// Any counter: the next value is computed with the operators of its type.
void Emitter::generalFor(const ForStmt& loop, const Place& counter) {
    const Type type = counter.type;
    const auto slotType = layout_.slotTypeOf(type);
    const auto fixed = smallStep(loop.step);
    const Value from = counted(*loop.from, type);
    const Value limit{type, slots_.hidden(slotType), false};
    (void)convert(counted(*loop.to, type), type, limit.slot);
    const Value step{type, slots_.hidden(slotType), false};
    if (loop.step)
        (void)convert(counted(*loop.step, type), type, step.slot);
    else
        (void)convert(longConstant(1, {}, ValueType::Integer), type, step.slot);
    store(counter, {type, from.slot, false});
    const Label body = out_.label(), test = out_.label(), exit = out_.label(), down = out_.label();
    const auto entered = beginLoopCheck();
    clearObjects(statementMark_);
    out_.jump(Op::Jump, test);
    out_.place(body);
    forExits_.push_back(exit);
    block(loop.body);
    forExits_.pop_back();
    beginNext(loop.pos, loop.lines);
    checkLoop(entered);
    const auto mark = slots_.mark();
    store(counter, sumOf(load(counter), step, type));
    out_.place(test);
    const Value present = load(counter);
    if (!fixed) {
        const Value zero = convert(longConstant(0, {}, ValueType::Integer), type);
        jumpIf(Operator::Less, step, zero, down);
    }
    jumpIf(fixed && *fixed < 0 ? Operator::GreaterEqual : Operator::LessEqual, present, limit, body);
    if (!fixed) {
        out_.jump(Op::Jump, exit);
        out_.place(down);
        jumpIf(Operator::GreaterEqual, present, limit, body);
    }
    slots_.releaseTo(mark);
    out_.place(exit);
    endLoopCheck(entered);
    slots_.giveBack(limit.slot, slotType);
    slots_.giveBack(step.slot, slotType);
}

/// A text is a number here, because a Variant that holds a number is less than any text.
Value Emitter::counted(const Expr& expr, const Type& type) {
    if (type.value != ValueType::Variant) return value(expr, type);
    const auto given = typeOfExpr(expr).value;
    if (given == ValueType::String || given == ValueType::FixedString)
        return convert(value(expr, {ValueType::Double}), type);
    const Value present = value(expr, type);
    const bool mayBeText = given == ValueType::Variant || given == ValueType::Object || given == ValueType::Unknown;
    if (!mayBeText) return present;
    const Value zero = convert(longConstant(0, {}, ValueType::Integer), type);
    return operateVariants(Operator::Add, present, zero, std::nullopt);
}

Value Emitter::sumOf(const Value& left, const Value& right, const Type& type) {
    if (type.value == ValueType::Variant) return operateVariants(Operator::Add, left, right, std::nullopt);
    if (type.value == ValueType::Boolean)
        return convert(arithmetic(Operator::Add, ValueType::Integer, ValueType::Integer, left, right, {}), type);
    return arithmetic(Operator::Add, type.value, type.value, left, right, std::nullopt);
}

void Emitter::jumpIf(Operator op, const Value& left, const Value& right, Label target) {
    if (left.type.value != ValueType::Variant) return compareJump(op, left, right, true, target);
    const Value answer = operateVariants(op, left, right, std::nullopt);
    const auto isTrue = temporary({ValueType::Boolean});
    out_.emit(Op::IsTrue, isTrue, answer.slot);
    out_.jump(Op::JumpTrue, target, isTrue);
}

/// The element is fetched at the foot: where the loop was not entered at its head, Next fails, and Resume Next leaves it.
void Emitter::forEach(const ForEachStmt& loop) {
    const image::SlotType walkType{image::BaseType::Object, {}, 0};
    const auto walk = slots_.hidden(walkType);
    const Type group = typeOfExpr(*loop.in);
    if (group.isArray) {
        out_.emit(Op::BeginEachArray, walk, array(place(*loop.in)).slot);
    } else {
        out_.emit(Op::BeginEach, walk, variantOf(*loop.in).slot);
    }
    clearObjects(statementMark_);
    const Label body = out_.label(), next = out_.label(), exit = out_.label();
    out_.jump(Op::Jump, next);
    out_.place(body);
    forExits_.push_back(exit);
    block(loop.body);
    forExits_.pop_back();
    beginNext(loop.pos, loop.lines);
    out_.place(next);
    const auto mark = slots_.mark();
    const Value element{{ValueType::Variant}, temporary({ValueType::Variant})};
    out_.jump(Op::NextEach, exit, element.slot, walk);
    const Place variable = place(*loop.variable);
    if (variable.type.value == ValueType::Object)
        setObject(variable, element);
    else
        store(variable, element);
    clearObjects(mark);
    slots_.releaseTo(mark);
    out_.jump(Op::Jump, body);
    out_.place(exit);
    out_.emit(Op::Clear, walk);
    slots_.giveBack(walk, walkType);
}

} // namespace qltoolkit
