#pragma once
// Random programs of compiled code that a verifier accepts.
#include "Components/Image/code/code_image.h"
#include "Components/Image/code/instruction.h"
#include "Components/Image/code/record_shapes.h"
#include "Components/Image/verify/operand_masks.h"
#include "Components/Image/verify/slot_table.h"
#include "Components/Image/verify/tables.h"
#include "Components/Image/verify/verify.h"
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace support {

/// Returns a number below `limit`, which is not 0.
using RandomNumber = std::function<std::uint32_t(std::uint32_t limit)>;

/// Makes images of which every part is there: records, arrays, classes with events and interfaces, references, errors. The
/// functions of a runtime are called as often as procedures. Programs usually do not end by themselves.
class RandomCode {
public:
    using Functions = std::map<std::string, image::Signature>;

    explicit RandomCode(RandomNumber random, Functions functions = {})
        : random_(std::move(random)), functions_(std::move(functions)) {}

    image::CodeImage make() {
        code_ = {};
        addTables();
        shapes_.emplace(code_.records);
        addProcedures();
        const image::Tables tables{code_};
        tables_ = &tables;
        for (std::uint32_t i = 0; i < code_.procedures.size(); ++i) addCode(i);
        return std::move(code_);
    }

private:
    using SlotType = image::SlotType;
    using BaseType = image::BaseType;
    using TypeForm = image::TypeForm;
    using Op = image::Op;
    using Pass = image::Pass;
    using Operand = image::Operand;
    using Extra = image::Extra;

    static constexpr std::uint32_t kRecords = 3, kClasses = 3, kSubs = 4;

    struct Slot {
        std::uint32_t number;
        SlotType type;
    };

    // Choices
    std::uint32_t below(std::size_t limit) { return random_(std::uint32_t(limit)); }
    bool once(std::uint32_t in) { return below(in) == 0; }
    template <class T>
    const T& oneOf(const std::vector<T>& list) {
        return list[below(list.size())];
    }
    std::uint32_t text(const std::string& value) {
        for (std::uint32_t i = 0; i < code_.texts.size(); ++i)
            if (code_.texts[i] == value) return i;
        code_.texts.push_back(value);
        return std::uint32_t(code_.texts.size() - 1);
    }

    // Types
    SlotType value(BaseType base) {
        const auto id = base == BaseType::Object ? below(kClasses + 1) : 0;
        return {base, TypeForm::Value, id};
    }
    SlotType plainValue() {
        constexpr BaseType kBases[] = {BaseType::Long, BaseType::Double,  BaseType::Currency,
                                       BaseType::Text, BaseType::Variant, BaseType::Object};
        return value(kBases[below(std::size(kBases))]);
    }
    /// Of an array or of what a reference refers to; records have numbers below `records`.
    SlotType element(std::uint32_t records) {
        const auto last = std::uint32_t(BaseType::Object) + (records > 0 ? 1 : 0);
        const auto base = BaseType(1 + below(last));
        return base == BaseType::Record ? SlotType{base, TypeForm::Value, below(records)} : value(base);
    }
    SlotType array(std::uint32_t records) {
        auto type = element(records);
        type.form = TypeForm::Array;
        return type;
    }
    SlotType parameterType() {
        if (once(3)) {
            auto type = element(kRecords);
            type.form = once(3) ? TypeForm::ArrayReference : TypeForm::Reference;
            return type;
        }
        return once(5) ? array(kRecords) : plainValue();
    }
    SlotType variableType() {
        if (once(8)) return {BaseType::Record, TypeForm::Value, below(kRecords)};
        return once(4) ? array(kRecords) : parameterType();
    }
    SlotType fieldType() {
        if (once(6)) return {BaseType::Record, TypeForm::Value, below(kRecords)};
        return once(4) ? array(kRecords) : plainValue();
    }

    // Tables
    void addTables() {
        code_.numbers = {0x3FF0000000000000, 0xC000000000000000, 0x3FE0000000000000, 20000};
        code_.modules = {{text("Module1"), text("Module1.bas"), image::kNone}};
        for (std::uint32_t i = 0; i < kRecords; ++i) {
            auto& record = code_.records.emplace_back();
            for (auto fields = 1 + below(4); fields > 0; --fields) {
                const auto type = once(4) ? array(i) : element(i);
                const bool isText = type.base == BaseType::Text && type.form == TypeForm::Value;
                record.fields.push_back({type, image::kNone, isText && once(2) ? 1 + below(20) : 0});
            }
        }
        for (int i = 0; i < 8; ++i) {
            auto& shape = code_.arrays.emplace_back();
            shape.element = i == 0 ? SlotType{BaseType::Byte} : element(kRecords);
            for (auto dimensions = 1 + below(3); dimensions > 0; --dimensions) {
                const auto lower = std::int32_t(below(5)) - 2;
                shape.bounds.push_back({lower, lower + std::int32_t(below(4))});
            }
        }
        for (auto globals = 4 + below(6); globals > 0; --globals) code_.globals.push_back({fieldType()});
        for (const auto& [name, signature] : functions_)
            code_.imports.push_back({text(name), signature.result, signature.parameters});
        for (std::uint32_t i = 1; i <= kClasses; ++i) addClass(i);
    }
    void addClass(std::uint32_t number) {
        code_.modules.push_back({text("Class" + std::to_string(number)), text("Class.cls"), image::kNone});
        auto& made = code_.classes.emplace_back();
        made.name = text("Class" + std::to_string(number));
        made.module = number;
        // A source of events comes first.
        made.fields.push_back({{BaseType::Object, TypeForm::Value, 1 + below(kClasses)}});
        for (auto fields = 1 + below(5); fields > 0; --fields) made.fields.push_back({fieldType()});
        auto& event = made.events.emplace_back();
        event.name = text("Changed");
        for (auto parameters = below(3); parameters > 0; --parameters) event.parameters.push_back(parameterType());
    }

    // Procedures
    std::uint32_t addProcedure(const std::string& name, std::uint32_t module, std::vector<SlotType> parameters,
                               SlotType result) {
        auto& procedure = code_.procedures.emplace_back();
        procedure.name = text(name);
        procedure.module = module;
        procedure.parameters = std::uint32_t(parameters.size());
        std::uint32_t slots = 0;
        const auto add = [&](SlotType type, bool isTemporary) {
            procedure.variables.push_back({type, isTemporary});
            slots += std::uint32_t(shapes_->slotsOf(type));
        };
        for (const auto type : parameters) add(type, false);
        if (result != SlotType{}) {
            procedure.resultSlot = slots;
            add(result, false);
        }
        for (const auto base : {BaseType::Long, BaseType::Double, BaseType::Text, BaseType::Variant, BaseType::Object})
            add(value(base), false);
        // Bytes are shorter than what most instructions reach: a reference to one would be beyond the array.
        add({BaseType::Byte, TypeForm::Array}, false);
        add({BaseType::Long, TypeForm::Reference}, false);
        for (auto variables = below(25); variables > 0; --variables) add(variableType(), once(3));
        return std::uint32_t(code_.procedures.size() - 1);
    }
    std::vector<SlotType> someParameters() {
        std::vector<SlotType> types;
        for (auto count = below(5); count > 0; --count) types.push_back(parameterType());
        return types;
    }
    SlotType someResult() { return once(2) ? SlotType{} : plainValue(); }

    void addProcedures() {
        code_.start = addProcedure("Main", 0, {}, {});
        for (std::uint32_t i = 0; i < kSubs; ++i)
            addProcedure("Sub" + std::to_string(i), 0, someParameters(), someResult());
        for (std::uint32_t i = 1; i <= kClasses; ++i) addMethods(i);
        addInterface();
    }
    static SlotType me(std::uint32_t number) { return {BaseType::Object, TypeForm::Value, number}; }
    void addMethods(std::uint32_t number) {
        const auto method = [&](const std::string& name, std::vector<SlotType> parameters, SlotType result) {
            parameters.insert(parameters.begin(), me(number));
            return addProcedure(name, number, std::move(parameters), result);
        };
        auto& made = code_.classes[number - 1];
        made.initialize = method("Class_Initialize", {}, {});
        if (once(2)) made.terminate = method("Class_Terminate", {}, {});
        const auto parameters = someParameters();
        const auto result = someResult();
        const auto work = method("Work", parameters, result);
        auto& member = made.members.emplace_back();
        member.name = text("Work");
        member.target = work;
        for (const auto type : parameters) member.parameters.push_back({type.base});
        member.result = result.base;
        const auto source = made.fields[0].type.id;
        const auto handler = method("source_Changed", code_.classes[source - 1].events[0].parameters, {});
        if (once(2)) made.sinks = {{0, source, {{0, handler}}}};
    }
    /// The last class implements the first.
    void addInterface() {
        const auto declared = code_.procedures[code_.classes[0].members[0].target];
        std::vector<SlotType> types;
        for (std::uint32_t i = 0; i < declared.parameters; ++i) types.push_back(declared.variables[i].type);
        types[0] = me(kClasses);
        SlotType result;
        if (declared.resultSlot != image::kNoSlot) result = declared.variables[declared.parameters].type;
        const auto number = addProcedure("Class1_Work", kClasses, types, result);
        code_.classes[kClasses - 1].implementations = {{1, {number}}};
    }

    // Code
    void addCode(std::uint32_t number) {
        auto& procedure = code_.procedures[number];
        variables_ = tables_->shapes.sequenceOf(procedure.variables);
        collectSlots();
        words_.clear();
        starts_.clear();
        jumps_.clear();
        resumes_ = !once(4);
        // Otherwise most programs would end at their first error.
        if (resumes_ && !once(3)) {
            starts_.push_back(0);
            words_.push_back(image::encode(Op::OnErrorResumeNext));
        }
        for (const auto& slot : slots_)
            if (slot.number < image::kMostDirectSlots && !once(4)) fill(slot, number <= kSubs);
        for (auto count = 1 + below(40); count > 0; --count) addInstruction();
        starts_.push_back(std::uint32_t(words_.size()));
        words_.push_back(image::encode(once(10) ? Op::End : Op::Return));
        for (const auto& [instruction, word] : jumps_) words_[word] = oneOf(starts_) - instruction;
        procedure.code = std::uint32_t(code_.code.size());
        procedure.words = std::uint32_t(words_.size());
        if (resumes_) procedure.statements = starts_;
        std::uint32_t line = 1;
        for (const auto start : starts_)
            if (once(3)) procedure.lines.push_back({start, line += below(9)});
        code_.code.insert(code_.code.end(), words_.begin(), words_.end());
    }
    void collectSlots() {
        slots_.clear();
        for (std::uint32_t slot = 0; slot < variables_.slots(); ++slot) {
            const auto type = tables_->shapes.typeAt(variables_, slot);
            if (type.base == BaseType::Half) continue;
            slots_.push_back({slot, image::asSlot(type)});
        }
    }
    /// Gives a variable something that instructions can reach: an array its elements, an object variable an object.
    void fill(const Slot& slot, bool mayMakeObjects) {
        const auto put = [&](Op op, std::uint32_t extra) {
            starts_.push_back(std::uint32_t(words_.size()));
            words_.push_back(image::encode(op, slot.number));
            words_.push_back(extra);
        };
        const auto& type = slot.type;
        if (type.form == TypeForm::Value && type.base == BaseType::Object && type.id != 0 && mayMakeObjects)
            put(Op::NewObject, type.id);
        if (type.form != TypeForm::Array) return;
        for (std::uint32_t i = 0; i < code_.arrays.size(); ++i)
            if (const auto& element = code_.arrays[i].element; element.base == type.base && element.id == type.id)
                return put(Op::NewArray, i);
    }
    void addInstruction() {
        const auto op = Op(below(image::kInstructionCount));
        const bool resuming = op == Op::Resume || op == Op::ResumeNext || op == Op::OnErrorResumeNext;
        if (resuming && !resumes_) return;
        at_ = std::uint32_t(words_.size());
        if (const auto word = instruction(op)) {
            starts_.push_back(at_);
            words_[at_] = *word;
        } else {
            words_.resize(at_);
            while (!jumps_.empty() && jumps_.back().first == at_) jumps_.pop_back();
        }
    }

    /// Returns a slot that instructions reach directly.
    std::optional<Slot> slotWhere(const std::function<bool(const Slot&)>& suits) {
        std::vector<Slot> found;
        for (const auto& slot : slots_)
            if (slot.number < image::kMostDirectSlots && suits(slot)) found.push_back(slot);
        if (found.empty()) return std::nullopt;
        return oneOf(found);
    }
    std::optional<Slot> slotIn(image::TypeSet set) {
        return slotWhere([set](const Slot& slot) { return (set >> image::classOf(slot.type) & 1) != 0; });
    }
    std::optional<Slot> slotOf(SlotType type) {
        return slotWhere([type](const Slot& slot) { return slot.type == type; });
    }
    std::optional<Slot> slotTaking(SlotType type) {
        return slotWhere([type](const Slot& slot) { return image::takes(slot.type, type); });
    }
    std::optional<Slot> slotFor(SlotType type) {
        return slotWhere([type](const Slot& slot) { return image::takes(type, slot.type); });
    }

    using Made = std::optional<std::uint32_t>;
    void push(std::uint32_t word) { words_.push_back(word); }
    static Made encoded(Op op, const std::optional<Slot>& a, const std::optional<Slot>& b, std::uint32_t c = 0) {
        if (!a || !b) return std::nullopt;
        return image::encode(op, a->number, b->number, c);
    }
    static Made encoded(Op op, const std::optional<Slot>& a) {
        if (!a) return std::nullopt;
        return image::encode(op, a->number);
    }

    Made instruction(Op op) {
        push(0);
        const auto& info = image::infoOf(op);
        switch (op) {
        case Op::Move:
        case Op::CopyArray:
        case Op::TakeArray:
        case Op::ShareArray:
        case Op::CopyRef:
        case Op::CopyRecord: {
            const auto a = op == Op::CopyRecord ? recordReference() : slotIn(image::slotsFor(info.operands[0]));
            return a ? encoded(op, a, slotOf(a->type)) : std::nullopt;
        }
        case Op::PrepareRecord: return encoded(op, recordReference());
        case Op::CopyObject:
        case Op::TakeObject: {
            const auto b = slotIn(image::setOf(BaseType::Object));
            return encoded(op, b ? slotTaking(b->type) : b, b);
        }
        case Op::LoadWide:
        case Op::StoreWide: return wide(op);
        case Op::RefAt:
        case Op::RefFlat: return elementReference(op);
        case Op::LoadObjectAt:
        case Op::LoadObjectFlat:
        case Op::StoreObjectAt:
        case Op::StoreObjectFlat: return objectElement(op);
        case Op::RefSlot: return slotReference();
        case Op::RefGlobal:
        case Op::RefField:
        case Op::RefPart: return partReference(op);
        case Op::LoadGlobal:
        case Op::StoreGlobal: return global(op);
        case Op::LoadField:
        case Op::StoreField:
        case Op::SetSource: return field(op);
        case Op::NewArray: return newArray();
        case Op::NewObject:
        case Op::NeedObject:
        case Op::CastObject:
        case Op::CheckInterface:
        case Op::IsOfClass: return ofClass(op);
        case Op::Call:
        case Op::CallMethod: return call(op);
        case Op::CallInterface: return callInterface();
        case Op::CallNative: return callNative();
        case Op::CallLate: return callLate();
        case Op::RaiseEvent: return raiseEvent();
        default: break;
        }
        if (info.operands[2] == Operand::OffsetC) return throughReference(op);
        return plain(op);
    }

    /// An instruction whose operands do not depend on each other.
    Made plain(Op op) {
        const auto& info = image::infoOf(op);
        std::uint32_t values[3] = {};
        std::uint32_t count = 0;
        for (std::size_t i = 0; i < 3; ++i) {
            const auto operand = info.operands[i];
            if (operand == Operand::CountC) values[i] = count = (op == Op::CallByName ? 2 : 1) + below(3);
            if (operand == Operand::BaseType) values[i] = std::uint32_t(kindFor(info));
            if (operand == Operand::Unsigned) values[i] = below(2);
            if (operand == Operand::Signed || operand == Operand::SignedBC) values[i] = below(256);
            if (operand == Operand::NumberB || operand == Operand::NumberC || operand == Operand::NumberBC)
                values[i] = below(code_.numbers.size());
            const auto set = image::slotsFor(operand);
            if (set == 0) continue;
            const auto slot = operand == Operand::WriteObject ? slotOf({BaseType::Object}) : slotIn(set);
            if (!slot) return std::nullopt;
            values[i] = slot->number;
        }
        if (!addExtra(op, info, count)) return std::nullopt;
        return image::encode(op, values[0], values[1], values[2]);
    }
    BaseType kindFor(const image::InstructionInfo& info) {
        constexpr BaseType kWhole[] = {BaseType::Boolean, BaseType::Byte, BaseType::Integer, BaseType::Long};
        constexpr BaseType kFloat[] = {BaseType::Single, BaseType::Double, BaseType::Date};
        const bool isWhole = info.operands[0] == Operand::WriteLong || info.operands[1] == Operand::ReadLong;
        return isWhole ? kWhole[below(4)] : kFloat[below(3)];
    }
    bool addExtra(Op op, const image::InstructionInfo& info, std::uint32_t count) {
        switch (info.extra) {
        case Extra::None: return true;
        case Extra::Number: push(below(100)); return true;
        case Extra::Text: push(below(code_.texts.size())); return true;
        case Extra::Jump: addJump(); return true;
        case Extra::Table:
            for (std::uint32_t i = 0; i < count; ++i) addJump();
            return true;
        case Extra::Operation: {
            const auto first = std::uint32_t(image::VariantOperator::Negate);
            const bool isUnary = op == Op::OperateUnary;
            push(image::OperationWord{
                image::VariantOperator(isUnary ? first + below(image::kVariantOperators - first) : below(first)),
                once(2)}
                     .packed());
            return true;
        }
        case Extra::TypeAndSlots: {
            const auto type = element(0);
            push(image::pack(type));
            return addSlots(2 * count, BaseType::Long);
        }
        case Extra::Slots:
            return addSlots(op == Op::ReDim ? 2 * count : count,
                            op == Op::ReDim || op == Op::FindElement ? BaseType::Long : BaseType::Variant);
        default: return false;
        }
    }
    void addJump() {
        jumps_.emplace_back(at_, std::uint32_t(words_.size()));
        push(0);
    }
    bool addSlots(std::uint32_t count, BaseType base) {
        std::vector<std::uint16_t> halves;
        for (std::uint32_t i = 0; i < count; ++i) {
            const auto slot = slotOf({base});
            if (!slot) return false;
            halves.push_back(std::uint16_t(slot->number));
        }
        addHalves(halves);
        return true;
    }
    void addHalves(std::vector<std::uint16_t> halves) {
        if (halves.size() % 2 != 0) halves.push_back(0);
        for (std::size_t i = 0; i < halves.size(); i += 2) push(halves[i] | std::uint32_t(halves[i + 1]) << 16);
    }

    std::optional<Slot> recordReference() { return slotIn(image::setOf(BaseType::Record, TypeForm::Reference)); }
    Made wide(Op op) {
        const auto& far = oneOf(slots_);
        const auto near = op == Op::LoadWide ? slotTaking(far.type) : slotFor(far.type);
        if (!near) return std::nullopt;
        return image::encodeWide(op, near->number, far.number);
    }
    Made elementReference(Op op) {
        const auto b = slotIn(image::kArraySlots);
        if (!b) return std::nullopt;
        // Bytes are shorter than the slots that hold them.
        if (b->type.base == BaseType::Byte) return std::nullopt;
        return indexed(op, slotOf({image::slotBase(b->type.base), TypeForm::Reference, b->type.id}), b);
    }
    Made indexed(Op op, const std::optional<Slot>& a, const std::optional<Slot>& b) {
        const auto index = slotOf({BaseType::Long});
        return index ? encoded(op, a, b, index->number) : std::nullopt;
    }
    Made objectElement(Op op) {
        const auto b = slotIn(image::setOf(BaseType::Object, TypeForm::Array));
        if (!b) return std::nullopt;
        const SlotType type{BaseType::Object, TypeForm::Value, b->type.id};
        const bool loads = op == Op::LoadObjectAt || op == Op::LoadObjectFlat;
        return indexed(op, loads ? slotTaking(type) : slotFor(type), b);
    }

    /// A reference to what is in a slot of some variables.
    std::optional<Slot> referenceInto(const image::SlotSequence& variables, std::uint32_t slot) {
        const auto target = tables_->shapes.typeAt(variables, slot);
        return slotWhere([&](const Slot& each) {
            if (each.type.form == TypeForm::Reference && each.type.base == BaseType::Record)
                return tables_->shapes.beginsRecord(variables, slot, each.type.id);
            return image::mayRefer(each.type, target);
        });
    }
    Made slotReference() {
        const auto slot = below(variables_.slots());
        const auto a = referenceInto(variables_, slot);
        if (!a) return std::nullopt;
        return image::encodeWide(Op::RefSlot, a->number, slot);
    }
    Made partReference(Op op) {
        std::optional<Slot> b{Slot{}};
        const auto* variables = &tables_->globals;
        if (op == Op::RefField) {
            b = classObject();
            if (!b) return std::nullopt;
            variables = &tables_->fields[b->type.id - 1];
        } else if (op == Op::RefPart) {
            b = recordReference();
            if (!b) return std::nullopt;
            variables = &tables_->shapes.fieldsOf(b->type.id);
        }
        const auto slot = below(variables->slots());
        if (op == Op::RefField && tables_->isSource(b->type.id, slot)) return std::nullopt;
        push(slot);
        return encoded(op, referenceInto(*variables, slot), b);
    }
    Made throughReference(Op op) {
        const auto& info = image::infoOf(op);
        const auto b = slotIn(image::kReferenceSlots);
        if (!b) return std::nullopt;
        std::uint32_t offset = 0;
        SlotType target{b->type.base, b->type.form == TypeForm::Reference ? TypeForm::Value : TypeForm::Array,
                        b->type.id};
        if (b->type.form == TypeForm::Reference && b->type.base == BaseType::Record) {
            const auto& fields = tables_->shapes.fieldsOf(b->type.id);
            offset = below(std::min<std::uint64_t>(fields.slots(), 256));
            target = tables_->shapes.typeAt(fields, offset);
        }
        target = image::asSlot(target);
        if ((image::slotsFor(info.operands[0]) >> image::classOf(target) & 1) == 0) return std::nullopt;
        return encoded(op, info.name.starts_with("Load") ? slotTaking(target) : slotFor(target), b, offset);
    }
    std::optional<Slot> classObject() {
        return slotWhere([](const Slot& slot) {
            return slot.type.form == TypeForm::Value && slot.type.base == BaseType::Object && slot.type.id != 0;
        });
    }

    Made global(Op op) {
        const auto slot = below(tables_->globals.slots());
        const auto type = image::asSlot(tables_->shapes.typeAt(tables_->globals, slot));
        push(slot);
        return encoded(op, op == Op::LoadGlobal ? slotTaking(type) : slotFor(type));
    }
    Made field(Op op) {
        const auto b = classObject();
        if (!b) return std::nullopt;
        const auto& fields = tables_->fields[b->type.id - 1];
        const auto slot = op == Op::SetSource ? 0 : below(std::min<std::uint64_t>(fields.slots(), 256));
        if (op == Op::StoreField && tables_->isSource(b->type.id, slot)) return std::nullopt;
        const auto type = image::asSlot(tables_->shapes.typeAt(fields, slot));
        return encoded(op, op == Op::LoadField ? slotTaking(type) : slotFor(type), b, slot);
    }
    Made newArray() {
        const auto number = below(code_.arrays.size());
        push(number);
        const auto element = code_.arrays[number].element;
        return encoded(Op::NewArray, slotOf({element.base, TypeForm::Array, element.id}));
    }
    Made ofClass(Op op) {
        const auto number = 1 + below(kClasses);
        push(number);
        const auto object = slotIn(image::setOf(BaseType::Object));
        if (op == Op::IsOfClass) return encoded(op, slotOf({BaseType::Long}), object);
        const auto a = op == Op::CheckInterface ? slotOf({BaseType::Object}) : slotTaking(me(number));
        return op == Op::CastObject || op == Op::CheckInterface ? encoded(op, a, object) : encoded(op, a);
    }

    // Calls
    std::optional<std::uint16_t> argumentFor(SlotType parameter) {
        std::vector<std::uint16_t> choices;
        const bool takesRecord = parameter.form == TypeForm::Reference && parameter.base == BaseType::Record;
        for (const auto& slot : slots_) {
            const auto add = [&](Pass pass) { choices.push_back(image::encodeArgument(pass, slot.number)); };
            if (takesRecord ? tables_->shapes.beginsRecord(variables_, slot.number, parameter.id)
                            : image::mayRefer(parameter, slot.type))
                add(Pass::Address);
            if (!image::takes(parameter, slot.type)) continue;
            const bool isReference = parameter.form > TypeForm::Array;
            if (isReference) add(Pass::Ref);
            if (image::slotsOf(parameter) == 2)
                add(Pass::TakePair);
            else if (image::isManaged(parameter))
                add(Pass::Take);
            else
                add(Pass::Number);
            if (parameter.form != TypeForm::Value) continue;
            if (parameter.base == BaseType::Text) add(Pass::Text);
            if (parameter.base == BaseType::Object) add(Pass::Object);
            if (parameter.base == BaseType::Variant) add(Pass::Variant);
        }
        if (choices.empty()) return std::nullopt;
        return oneOf(choices);
    }
    bool addArguments(const std::vector<SlotType>& parameters) {
        std::vector<std::uint16_t> halves;
        for (const auto type : parameters) {
            const auto argument = argumentFor(type);
            if (!argument) return false;
            halves.push_back(*argument);
        }
        addHalves(halves);
        return true;
    }
    Made called(Op op, std::uint32_t extra, const std::vector<SlotType>& parameters, SlotType result) {
        push(extra);
        if (!addArguments(parameters)) return std::nullopt;
        std::uint32_t a = image::kNoSlot;
        if (result != SlotType{} && once(2))
            if (const auto slot = slotTaking(result)) a = slot->number;
        return image::encode(op, a, 0, std::uint32_t(parameters.size()));
    }
    std::vector<SlotType> parametersOf(std::uint32_t number) {
        std::vector<SlotType> types;
        const auto& procedure = code_.procedures[number];
        for (std::uint32_t i = 0; i < procedure.parameters; ++i) types.push_back(procedure.variables[i].type);
        return types;
    }
    Made call(Op op) {
        const auto number = below(code_.procedures.size());
        const auto parameters = parametersOf(number);
        const bool isMethod =
            !parameters.empty() && parameters[0].form == TypeForm::Value && parameters[0].base == BaseType::Object;
        if (op == Op::CallMethod && !isMethod) return std::nullopt;
        return called(op, number, parameters, tables_->results[number]);
    }
    Made callInterface() {
        const auto number = 1 + below(kClasses);
        const auto target = code_.classes[number - 1].members[0].target;
        auto parameters = parametersOf(target);
        parameters[0] = {BaseType::Object};
        return called(Op::CallInterface, number, parameters, tables_->results[target]);
    }
    Made callNative() {
        if (code_.imports.empty()) return std::nullopt;
        const auto number = below(code_.imports.size());
        const auto& import = code_.imports[number];
        return called(Op::CallNative, number, import.parameters, import.result);
    }
    Made raiseEvent() {
        const auto b = classObject();
        if (!b) return std::nullopt;
        const auto& parameters = code_.classes[b->type.id - 1].events[0].parameters;
        push(0);
        if (!addArguments(parameters)) return std::nullopt;
        return image::encode(Op::RaiseEvent, 0, b->number, std::uint32_t(parameters.size()));
    }
    Made callLate() {
        const auto use = below(4), given = below(4), named = below(given + 1), count = given + (use >= 2 ? 1 : 0);
        push(once(4) ? image::kNone : text("Work"));
        push(use | named << 8);
        for (std::uint32_t i = 0; i < named; ++i) push(below(code_.texts.size()));
        if (!addSlots(count, BaseType::Variant)) return std::nullopt;
        const auto b = slotOf({BaseType::Variant});
        return b ? Made{image::encode(Op::CallLate, once(2) ? image::kNoSlot : b->number, b->number, count)}
                 : std::nullopt;
    }

    RandomNumber random_;
    Functions functions_;
    image::CodeImage code_;
    const image::Tables* tables_ = nullptr;
    std::optional<image::RecordShapes> shapes_; ///< known before the tables are
    image::SlotSequence variables_;
    std::vector<Slot> slots_; ///< of the procedure, the first of each pair
    std::vector<std::uint32_t> words_, starts_;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> jumps_; ///< an instruction, and its word to be filled in
    std::uint32_t at_ = 0;
    bool resumes_ = false;
};

} // namespace support
