// Debug.Print and the statements for files. Each is a few calls of functions of the runtime.
#include "Basic/case_folding.h"
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/code/emitter.h"

namespace qltoolkit {

using image::Op;

namespace {

constexpr Type kLong{ValueType::Long};
constexpr Type kNoResult{ValueType::None};

/// Spc(n) and Tab(n) among the items of Print.
std::string_view spacing(const Expr& item, const SymbolTable& symbols, const Expr*& count) {
    const Expr* name = &item;
    if (item.kind == ExprKind::Index) {
        const auto& index = as<IndexExpr>(item);
        name = index.callee;
        if (index.arguments.size() == 1) count = index.arguments[0].value;
    }
    if (name->kind != ExprKind::Name) return {};
    const auto spelled = symbols.spelling(as<NameExpr>(*name).name);
    if (basic::equalNoCase(spelled, "Spc") && count) return "PrintBlanks";
    return basic::equalNoCase(spelled, "Tab") ? "PrintTab" : std::string_view{};
}

bool isDebug(const Expr& target, const SymbolTable& symbols) {
    if (target.kind != ExprKind::Member) return false;
    const Expr* base = as<MemberExpr>(target).base;
    return base && base->kind == ExprKind::Name &&
           basic::equalNoCase(symbols.spelling(as<NameExpr>(*base).name), "Debug");
}

} // namespace

bool Emitter::fileStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::Print:
    case StmtKind::PrintFile:
    case StmtKind::WriteFile: print(as<PrintStmt>(stmt)); return true;
    case StmtKind::Open: open(as<OpenStmt>(stmt)); return true;
    case StmtKind::Close: {
        const auto& items = as<ListStmt>(stmt).items;
        if (items.empty()) (void)native("CloseAll", kNoResult, {});
        for (const auto* item : items) (void)native("Close", kNoResult, {value(*item, kLong)});
        return true;
    }
    case StmtKind::InputFile: inputFile(as<ListStmt>(stmt)); return true;
    case StmtKind::Get:
    case StmtKind::Put:
    case StmtKind::Seek:
    case StmtKind::Lock:
    case StmtKind::Unlock:
    case StmtKind::LineInput:
    case StmtKind::Width:
    case StmtKind::NameAs: fileAccess(as<FileStmt>(stmt)); return true;
    default: return false;
    }
}

void Emitter::print(const PrintStmt& stmt) {
    const bool isMethod = stmt.kind == StmtKind::Print, isWrite = stmt.kind == StmtKind::WriteFile;
    const auto& symbols = layout_.program().symbols;
    if (isMethod && !isDebug(*stmt.target, symbols)) {
        (void)fail(basic::kPrinterError, {});
        return;
    }
    PrintTarget to{isMethod ? "Debug." : "File.", {}};
    if (!isMethod) to.file = value(*stmt.target, kLong);
    if (to.file) to.file->isTemporary = false;
    bool endsLine = true;
    for (const auto& item : stmt.items) {
        const auto mark = slots_.mark();
        if (item.value) printItem(*item.value, to, isWrite);
        if (item.separator == PrintSeparator::Comma && !isWrite) printPart(to, "PrintZone", {});
        releaseOperands(mark, image::kNoSlot);
        endsLine = item.separator == PrintSeparator::None;
    }
    if (endsLine) printPart(to, isWrite ? "WriteLine" : "PrintLine", {});
}

void Emitter::printPart(const PrintTarget& to, std::string_view part, std::vector<Value> values) {
    if (to.file) values.insert(values.begin(), *to.file);
    (void)native(std::string(to.prefix) + std::string(part), kNoResult, values);
}

void Emitter::printItem(const Expr& item, const PrintTarget& to, bool isWrite) {
    const Expr* count = nullptr;
    const auto name = spacing(item, layout_.program().symbols, count);
    if (!name.empty() && !isWrite)
        return count ? printPart(to, name, {value(*count, kLong)}) : printPart(to, "PrintZone", {});
    Value shown = variantOf(item);
    const Type type = known(typeOfExpr(item));
    const bool mayBeObject = type.value == ValueType::Object || type.value == ValueType::Variant;
    if (mayBeObject && !type.isArray) {
        const Value held = shown;
        shown = {held.type, temporary(held.type)};
        out_.emit(Op::VariantValue, shown.slot, held.slot);
    }
    printPart(to, isWrite ? "WriteItem" : "PrintItem", {shown});
}

void Emitter::open(const OpenStmt& stmt) {
    const Value path = value(*stmt.path, {ValueType::String});
    const Value number = value(*stmt.number, kLong);
    const auto word = [&](auto part) { return longConstant(static_cast<int>(part), {}); };
    const Value length = stmt.recordLength ? value(*stmt.recordLength, kLong) : longConstant(0, {});
    (void)native("Open", kNoResult, {path, number, word(stmt.mode), word(stmt.access), word(stmt.lock), length});
}

void Emitter::fileAccess(const FileStmt& stmt) {
    const auto number = [&](const Expr* part) { return part ? value(*part, kLong) : longConstant(0, {}); };
    switch (stmt.kind) {
    case StmtKind::Seek: (void)native("Seek", kNoResult, {number(stmt.first), number(stmt.second)}); break;
    case StmtKind::Lock:
        (void)native("Lock", kNoResult, {number(stmt.first), number(stmt.second), number(stmt.third)});
        break;
    case StmtKind::Unlock:
        (void)native("Unlock", kNoResult, {number(stmt.first), number(stmt.second), number(stmt.third)});
        break;
    case StmtKind::Width: (void)native("Width", kNoResult, {number(stmt.first), number(stmt.second)}); break;
    case StmtKind::NameAs:
        (void)native("Name", kNoResult,
                     {value(*stmt.first, {ValueType::String}), value(*stmt.second, {ValueType::String})});
        break;
    case StmtKind::LineInput: {
        const Value line = native("LineInput", {ValueType::String}, {number(stmt.first)});
        assignValue(place(*stmt.second), line);
        break;
    }
    default: transfer(stmt);
    }
}

/// Get and Put: the declared type decides how many bytes there are, which the slot does not show.
void Emitter::transfer(const FileStmt& stmt) {
    const Value file = value(*stmt.first, kLong);
    const Value position = stmt.second ? value(*stmt.second, kLong) : longConstant(0, {});
    const Type type = typeOfExpr(*stmt.third);
    const bool isGet = stmt.kind == StmtKind::Get;
    Place variable = place(*stmt.third);
    const bool isDirect = isAddressable(variable) || variable.type.value == ValueType::Record;
    Place changed = variable;
    if (!isDirect) {
        const auto slot = temporary(type);
        (void)convert(load(variable), type, slot);
        changed = resultPlace({type, slot, false});
    }
    NativeCall call;
    pass(call, file);
    pass(call, position);
    pass(call, longConstant(static_cast<int>(baseTypeOf(type.value)), {}));
    pass(call, longConstant(type.value == ValueType::FixedString ? type.id : 0, {}));
    passReference(call, changed);
    (void)finish(call, isGet ? "Get" : "Put", kNoResult);
    if (!isDirect && isGet) assignValue(variable, {type, changed.slot, false});
}

/// Input #: texts and other values are read differently.
void Emitter::inputFile(const ListStmt& stmt) {
    Value file = value(*stmt.items[0], kLong);
    file.isTemporary = false;
    for (std::uint32_t i = 1; i < stmt.items.size(); ++i) {
        const auto mark = slots_.mark();
        const Place variable = place(*stmt.items[i]);
        const bool isText = variable.type.value == ValueType::String || variable.type.value == ValueType::FixedString;
        assignValue(variable, native(isText ? "InputText" : "InputItem",
                                     {isText ? ValueType::String : ValueType::Variant}, {file}));
        clearObjects(mark);
        slots_.releaseTo(mark);
    }
}

} // namespace qltoolkit
