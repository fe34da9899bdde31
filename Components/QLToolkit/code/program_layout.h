#pragma once
// The numbers of a program's procedures, variables, records and classes, which all modules must know before code is made.
#include "Components/Image/code/code_image.h"
#include "Components/QLToolkit/code/library_functions.h"
#include "Components/QLToolkit/names/constants.h"
#include "Components/QLToolkit/names/record_size.h"
#include <unordered_map>
#include <unordered_set>

namespace qltoolkit {

/// The type as elements and fields have it.
[[nodiscard]] constexpr image::BaseType baseTypeOf(ValueType value) {
    using image::BaseType;
    switch (value) {
    case ValueType::Boolean: return BaseType::Boolean;
    case ValueType::Byte: return BaseType::Byte;
    case ValueType::Integer: return BaseType::Integer;
    case ValueType::Long: return BaseType::Long;
    case ValueType::Single: return BaseType::Single;
    case ValueType::Double: return BaseType::Double;
    case ValueType::Currency: return BaseType::Currency;
    case ValueType::Date: return BaseType::Date;
    case ValueType::String:
    case ValueType::FixedString: return BaseType::Text;
    case ValueType::Object:
    case ValueType::Nothing: return BaseType::Object;
    case ValueType::Record: return BaseType::Record;
    case ValueType::None: return BaseType::None;
    default: return BaseType::Variant;
    }
}

/// Whether a procedure writes its result to a record of the caller, to which its first parameter refers.
[[nodiscard]] inline bool returnsRecord(const Callable& callable) {
    return callable.result.value == ValueType::Record && !callable.result.isArray;
}

/// Whether a variable of a class is a member that is found by its name.
[[nodiscard]] inline bool isLateField(const Entity& field) {
    return field.isPublic && !field.type.isArray && field.type.value != ValueType::Record;
}

/// The procedures through which other classes reach a public variable of a class that they implement.
struct FieldAccess {
    Callable get, let, set;
    Entity property; ///< has those that the type of the variable needs
};

class ProgramLayout {
public:
    /// Gives entities their places and callables their numbers.
    explicit ProgramLayout(Program& program);

    /// The declared type: of an array with its elements, otherwise as in a field.
    [[nodiscard]] image::SlotType typeOf(const Type& type) const {
        const auto base = baseTypeOf(type.value);
        const bool isNumbered = base == image::BaseType::Object || base == image::BaseType::Record;
        return {base, type.isArray ? image::TypeForm::Array : image::TypeForm::Value,
                isNumbered ? numberOf(type, base) : 0};
    }
    /// The type of the slot that a value has. Of a record only its number counts.
    [[nodiscard]] image::SlotType slotTypeOf(const Type& type) const {
        auto result = typeOf(type);
        if (!type.isArray) result.base = image::slotBase(result.base);
        return result;
    }
    [[nodiscard]] image::SlotType referenceTo(const Type& type) const;
    /// How many slots a variable takes.
    [[nodiscard]] std::uint32_t slotsOf(const Type& type) const;
    /// Whether a variable needs more than zeros before its first use.
    [[nodiscard]] bool needsPreparation(const Type& record) const { return prepared_.contains(record.id); }

    /// The number of a class of the project whose objects the compiler knows exactly, or 0: of others, and of those
    /// that classes implement.
    [[nodiscard]] std::uint32_t exactClass(const Type& type) const;
    /// The number of a class of the project, or 0.
    [[nodiscard]] std::uint32_t classOf(std::uint32_t scope) const;
    [[nodiscard]] bool isInterface(std::uint32_t scope) const { return interfaces_.contains(scope); }
    /// Null for a variable that is read and assigned directly.
    [[nodiscard]] const FieldAccess* accessTo(const Entity& field) const {
        const auto found = accesses_.find(&field);
        return found == accesses_.end() ? nullptr : &found->second;
    }
    /// The procedure that reads a public variable of a class for others; null for one that late binding reads directly.
    [[nodiscard]] const Callable* readerOf(const Entity& field) const {
        if (const auto* access = accessTo(field)) return &access->get;
        const auto found = readers_.find(&field);
        return found == readers_.end() ? nullptr : &found->second;
    }
    [[nodiscard]] std::uint32_t recordOf(std::uint32_t scope) const { return records_.at(scope); }
    /// The bytes that a record takes as the language counts them, whatever it takes here.
    [[nodiscard]] std::uint64_t bytesOfRecord(std::uint32_t scope) const { return memory_.at(scope).bytes; }

    /// What the image knows about all modules: records, classes without their procedures, variables, and how many
    /// procedures there are.
    [[nodiscard]] const std::vector<image::RecordLayout>& records() const { return layouts_; }
    /// The shapes of arrays in records; those of modules follow.
    [[nodiscard]] const std::vector<image::ArrayShape>& arrays() const { return arrays_; }
    [[nodiscard]] const std::vector<image::SlotVariable>& globals() const { return globals_; }
    [[nodiscard]] std::uint32_t globalSlots() const { return globalSlots_; }
    [[nodiscard]] std::uint32_t procedures() const { return procedures_; }
    /// The variable for the object of a predeclared class.
    [[nodiscard]] std::uint32_t predeclared(std::uint32_t scope) const { return predeclared_.at(scope); }
    /// The procedure that prepares the variables of a module, or the fields of a class.
    [[nodiscard]] std::uint32_t prepareOf(std::size_t module) const {
        return firstPrepare_ + static_cast<std::uint32_t>(module);
    }
    [[nodiscard]] bool isPrepare(std::uint32_t procedure) const { return procedure >= firstPrepare_; }
    [[nodiscard]] std::uint32_t fieldSlots(std::uint32_t scope) const { return fieldSlots_.at(scope); }
    [[nodiscard]] const Program& program() const { return program_; }
    [[nodiscard]] const LibraryFunction& libraryFunction(Symbol name) const { return functions_.of(name); }

    /// The shape of an array with bounds.
    [[nodiscard]] image::ArrayShape shapeOf(const Entity& entity, SourceModule& module, Constants& constants,
                                            LocalConstants local = nullptr) const;

private:
    /// Of a class or record.
    [[nodiscard]] std::uint32_t numberOf(const Type& type, image::BaseType base) const;
    void numberClasses();
    void numberRecord(const Scope& scope, Constants& constants);
    void numberRecords();
    void numberProcedures();
    void numberAccess(const Entity& field);
    void numberReader(const Entity& field);
    void placeVariables();

    Program& program_;
    LibraryFunctions functions_;
    std::unordered_map<std::uint32_t, std::uint32_t> classes_, records_, recordSlots_, predeclared_, fieldSlots_;
    std::unordered_set<std::uint32_t> interfaces_, prepared_;
    std::unordered_map<const Entity*, FieldAccess> accesses_;
    std::unordered_map<const Entity*, Callable> readers_;
    std::vector<image::RecordLayout> layouts_;
    std::unordered_map<std::uint32_t, MemoryExtent> memory_; ///< of records, by Scope::number
    std::vector<image::ArrayShape> arrays_;
    std::vector<image::SlotVariable> globals_;
    std::uint32_t globalSlots_ = 0, procedures_ = 0, firstPrepare_ = 0;
};

} // namespace qltoolkit
