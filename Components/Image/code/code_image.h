#pragma once
// The code of a compiled application: procedures, classes, types, constants and data of modules.
#include "Components/Image/code/resources.h"
#include "Components/Image/code/slot_type.h"
#include <optional>
#include <string>
#include <vector>

namespace image {

// Limits of writers and readers.
inline constexpr std::uint32_t kMostSlots = 8192; ///< of a procedure
inline constexpr std::uint32_t kMostDirectSlots =
    255;                                      ///< that instructions reach; LoadWide and StoreWide reach the others
inline constexpr std::uint32_t kNoSlot = 255; ///< in the place of a slot for a result that is not wanted
inline constexpr std::uint32_t kMostDimensions = 60;
inline constexpr std::uint32_t kNone = 0xFFFFFFFF; ///< no procedure, no text, no array

/// The bounds of an array with a fixed size.
struct ArrayShape {
    SlotType element;
    std::uint32_t fixedLength = 0; ///< of elements that are texts of a fixed length, in characters; otherwise 0
    struct Bounds {
        std::int32_t lower, upper;
        friend bool operator==(const Bounds&, const Bounds&) = default;
    };
    std::vector<Bounds> bounds;
    friend bool operator==(const ArrayShape&, const ArrayShape&) = default;
};

struct RecordField {
    SlotType type;                 ///< as declared, with the types of elements
    std::uint32_t array = kNone;   ///< its shape, of an array with bounds
    std::uint32_t fixedLength = 0; ///< of a text of a fixed length, in characters; otherwise 0
    friend bool operator==(const RecordField&, const RecordField&) = default;
};

/// A record contains only records with lower numbers, at most kDeepestRecord deep.
struct RecordLayout {
    std::vector<RecordField> fields;
    friend bool operator==(const RecordLayout&, const RecordLayout&) = default;
};
inline constexpr int kDeepestRecord = 32;

/// A variable of a procedure, class or module. Records take the slots of their fields.
struct SlotVariable {
    SlotType type;            ///< Record for a whole record
    bool isTemporary = false; ///< released at a run-time error
    friend bool operator==(const SlotVariable&, const SlotVariable&) = default;
};

/// The physical line of the statement that begins at an instruction.
struct LineStart {
    std::uint32_t code, line; ///< code counts words from the beginning of the procedure
    friend bool operator==(const LineStart&, const LineStart&) = default;
};

/// Parameters are its first variables, in the order of the declaration; of a class the object, Me, comes first.
struct Procedure {
    std::uint32_t name = kNone; ///< a text
    std::uint32_t module = 0;
    std::uint32_t code = 0, words = 0; ///< its instructions in CodeImage::code, after those of the procedure before
    std::uint32_t numbers = 0;         ///< of its constants in CodeImage::numbers
    std::uint32_t parameters = 0;      ///< how many variables are parameters
    std::uint32_t resultSlot = kNoSlot;
    std::vector<SlotVariable> variables;
    std::vector<LineStart> lines;
    /// Where statements begin, the first at 0, of a procedure with Resume, ResumeNext or OnErrorResumeNext.
    std::vector<std::uint32_t> statements;
    friend bool operator==(const Procedure&, const Procedure&) = default;
};

enum class MemberUse : std::uint8_t { Method, Get, Let, Set, Field };

/// What an omitted parameter has. None: a Variant is Missing, others are zero, empty or Nothing.
struct DefaultValue {
    BaseType type = BaseType::None; ///< Variant: the bits are a kind, 0 for Empty or 1 for Null
    std::uint64_t bits = 0;         ///< a whole number, the bits of a fraction, a Currency, or the number of a text
    friend bool operator==(const DefaultValue&, const DefaultValue&) = default;
};

struct MemberParameter {
    BaseType type = BaseType::None; ///< as declared, which the slots do not show: Integer, Boolean, ...
    std::uint32_t name = kNone;     ///< a text
    bool isOptional = false;
    DefaultValue byDefault{};
    friend bool operator==(const MemberParameter&, const MemberParameter&) = default;
};

/// A member of a class as late binding finds it.
struct ClassMember {
    std::uint32_t name = kNone;
    MemberUse use = MemberUse::Method;
    bool isPublic = true;
    std::uint32_t target = 0; ///< a procedure; the slot of a Field
    std::vector<MemberParameter> parameters;
    BaseType result = BaseType::None; ///< Record: the procedure writes it to what its first parameter refers to
    bool hasParamArray = false;
    friend bool operator==(const ClassMember&, const ClassMember&) = default;
};

/// The procedures of a class for the members of an interface, in the order of that class's members.
struct Implementation {
    std::uint32_t interface = 0;
    std::vector<std::uint32_t> procedures;
    friend bool operator==(const Implementation&, const Implementation&) = default;
};

/// The handlers that a class has for the events of one of its WithEvents fields.
struct EventSink {
    std::uint32_t field = 0;  ///< a slot
    std::uint32_t source = 0; ///< the class that raises the events
    struct Handler {
        std::uint32_t event, procedure;
        friend bool operator==(const Handler&, const Handler&) = default;
    };
    std::vector<Handler> handlers;
    friend bool operator==(const EventSink&, const EventSink&) = default;
};

struct EventSignature {
    std::uint32_t name = kNone;
    std::vector<SlotType> parameters;
    friend bool operator==(const EventSignature&, const EventSignature&) = default;
};

struct ClassInfo {
    std::uint32_t name = kNone;
    std::uint32_t module = 0;
    std::vector<SlotVariable> fields;
    std::vector<ClassMember> members;
    std::vector<Implementation> implementations;
    std::vector<EventSignature> events;
    std::vector<EventSink> sinks;
    std::uint32_t prepare = kNone;       ///< gives fields with fixed sizes their arrays; runs before initialize
    std::uint32_t initialize = kNone;    ///< Class_Initialize
    std::uint32_t terminate = kNone;     ///< Class_Terminate
    std::uint32_t defaultMember = kNone; ///< the name
    std::uint32_t enumerator = kNone;    ///< the procedure that For Each calls
    std::uint32_t predeclared = kNone;   ///< the global that holds the object of the class's name
    friend bool operator==(const ClassInfo&, const ClassInfo&) = default;
};

/// A function of the runtime. An image with one that the runtime lacks, or has with other types, is refused.
struct Import {
    std::uint32_t name = kNone; ///< a text such as "Left" or "Collection.Add"
    SlotType result;
    std::vector<SlotType> parameters;
    friend bool operator==(const Import&, const Import&) = default;
};

struct CodeModule {
    std::uint32_t name = kNone, file = kNone;
    std::uint32_t prepare = kNone; ///< gives variables with fixed sizes their arrays
    friend bool operator==(const CodeModule&, const CodeModule&) = default;
};

struct CodeImage {
    std::vector<std::string> texts;     ///< UTF-8, all different
    std::vector<std::uint64_t> numbers; ///< the bits of Doubles and Currencies
    std::vector<std::uint32_t> code;
    std::vector<Procedure> procedures;
    std::vector<SlotVariable> globals; ///< of all modules
    std::vector<ArrayShape> arrays;
    std::vector<RecordLayout> records;
    std::vector<ClassInfo> classes; ///< number 1 is the first
    std::vector<Import> imports;
    std::vector<CodeModule> modules;
    std::vector<Resource> resources; ///< in their order
    std::uint32_t start = kNone; ///< Sub Main
    std::uint32_t codePage = 1252;
    friend bool operator==(const CodeImage&, const CodeImage&) = default;
};

} // namespace image
