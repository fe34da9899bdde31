#pragma once
// A compiled application as the machine runs it: what is computed once from its description.
#include "Components/Image/code/code_image.h"
#include "Components/Image/code/instruction.h"
#include "Components/Tamarik/values/shapes.h"
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tamarik {

/// How the value of a slot is copied and released.
enum class ValueKind : std::uint8_t { None, Number, Text, Object, Array, Variant, Reference };

/// The slots of the smallest frame.
inline constexpr std::uint32_t kSlotsOfFrame = 8;

struct LoadedProcedure {
    const std::uint32_t* code = nullptr;
    const Slot* numbers = nullptr;
    std::uint32_t slots = kSlotsOfFrame; ///< a multiple, so that a frame is cleared in large steps
    std::uint32_t resultSlot = 0;        ///< any slot without a result
    ValueKind result = ValueKind::None;
    bool returnsManaged = false; ///< the result is more than a number
    std::vector<std::uint32_t>
        holders;                      ///< managed slots, the owners of references; if all are zero, nothing is released
    std::vector<ManagedSlot> managed; ///< in the order of their release
    std::vector<ManagedSlot> temporaries; ///< those that a run-time error releases
    std::vector<image::SlotType> types;   ///< of all slots
    std::vector<ValueKind> kinds;         ///< of all slots
    const image::Procedure* info = nullptr;
};

struct LoadedClass {
    const image::ClassInfo* info = nullptr;
    RecordShape fields;
};

/// A verified application. Machines share it.
class Program {
public:
    /// The code must have passed verification.
    explicit Program(std::shared_ptr<const image::CodeImage> code, std::string project = {});
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    [[nodiscard]] const image::CodeImage& code() const { return *code_; }
    [[nodiscard]] std::string_view text(std::uint32_t number) const;
    [[nodiscard]] const std::string& project() const { return project_; }

    std::vector<LoadedProcedure> procedures;
    std::vector<LoadedClass> classes; ///< class number 1 is the first
    std::vector<RecordShape> records;
    std::vector<FixedArray> arrays;
    RecordShape globals;
    std::vector<image::SlotType> globalTypes;

    [[nodiscard]] ElementType elementOf(image::SlotType array) const;

private:
    void loadRecords();
    void loadProcedures();
    void loadClasses();
    void addVariable(RecordShape& shape, std::vector<image::SlotType>& types, image::SlotType type) const;
    [[nodiscard]] LoadedProcedure load(const image::Procedure& procedure) const;

    std::shared_ptr<const image::CodeImage> code_;
    std::string project_; ///< its name
};

[[nodiscard]] ValueKind valueKindOf(image::SlotType type);

} // namespace tamarik
