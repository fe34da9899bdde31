#include "Components/Image/code_sections.h"
#include "Components/Image/image_bytes.h"
#include "Components/Image/image_format.h"
#include "Components/Image/line_bytes.h"
#include "Components/Image/word_bytes.h"
#include <algorithm>

namespace image {

namespace {

constexpr std::size_t kWord = 4;

/// Reads the parts of code.
struct CodeReader {
    Reader in;

    std::uint32_t number() { return in.u32(); }
    /// Reads a list whose items take at least `smallest` bytes each.
    template <class T>
    void list(std::vector<T>& values, std::size_t smallest, auto read) {
        values.resize(in.count(smallest));
        for (auto& each : values) read(each);
    }
    static SlotType typeOf(std::uint32_t packed) {
        const auto base = packed & 0xFF, form = packed >> 8 & 0xFF;
        if (base >= kBaseTypes || form > std::uint32_t(TypeForm::ArrayReference)) imageIsDamaged("an unknown kind");
        return {BaseType(base), TypeForm(form), packed >> 16};
    }
    SlotType type() { return typeOf(number()); }
    BaseType base() {
        const auto value = in.u8();
        if (value >= kBaseTypes) imageIsDamaged("an unknown kind");
        return BaseType(value);
    }
    void types(std::vector<SlotType>& values) {
        list(values, kWord, [&](SlotType& each) { each = type(); });
    }
    void numbers(std::vector<std::uint32_t>& values) {
        list(values, kWord, [&](std::uint32_t& each) { each = number(); });
    }
    void variables(std::vector<SlotVariable>& values) {
        list(values, kWord, [&](SlotVariable& each) {
            const auto packed = number();
            each = {typeOf(packed & ~kTemporaryBit), (packed & kTemporaryBit) != 0};
        });
    }
    void end() const {
        if (!in.atEnd()) imageIsDamaged("a section is too long");
    }
};

void decodeGlobals(CodeReader r, const std::vector<SharedText>& strings, CodeImage& code) {
    const auto texts = r.number();
    if (texts > strings.size()) imageIsDamaged("a string is missing");
    code.texts.assign(strings.begin(), strings.begin() + texts);
    code.start = r.number();
    code.codePage = r.number();
    r.list(code.modules, 3 * kWord, [&](CodeModule& module) {
        module.name = r.number();
        module.file = r.number();
        module.prepare = r.number();
    });
    r.variables(code.globals);
    r.end();
}

void decodeTypes(CodeReader r, CodeImage& code) {
    r.list(code.records, kWord, [&](RecordLayout& record) {
        r.list(record.fields, 3 * kWord, [&](RecordField& field) {
            field.type = r.type();
            field.array = r.number();
            field.fixedLength = r.number();
        });
    });
    r.list(code.arrays, 3 * kWord, [&](ArrayShape& array) {
        array.element = r.type();
        array.fixedLength = r.number();
        r.list(array.bounds, 2 * kWord, [&](ArrayShape::Bounds& bounds) {
            bounds.lower = std::int32_t(r.number());
            bounds.upper = std::int32_t(r.number());
        });
    });
    r.end();
}

void readParameter(CodeReader& r, MemberParameter& parameter) {
    parameter.name = r.number();
    parameter.type = r.base();
    const auto isOptional = r.in.u8();
    if (isOptional > 1) imageIsDamaged("an unknown kind");
    parameter.isOptional = isOptional != 0;
    parameter.byDefault.type = r.base();
    if (parameter.byDefault.type == BaseType::None) return;
    const std::uint64_t low = r.number();
    parameter.byDefault.bits = low | std::uint64_t{r.number()} << 32;
}

void readMember(CodeReader& r, ClassMember& member) {
    member.name = r.number();
    member.target = r.number();
    const auto use = r.in.u8(), flags = r.in.u8();
    if (use > std::uint8_t(MemberUse::Field) || flags > (kPublicFlag | kParamArrayFlag))
        imageIsDamaged("an unknown kind");
    member.use = MemberUse(use);
    member.isPublic = (flags & kPublicFlag) != 0;
    member.hasParamArray = (flags & kParamArrayFlag) != 0;
    member.result = r.base();
    r.list(member.parameters, 7, [&](MemberParameter& parameter) { readParameter(r, parameter); });
}

void readSink(CodeReader& r, EventSink& sink) {
    sink.field = r.number();
    sink.source = r.number();
    r.list(sink.handlers, 2 * kWord, [&](EventSink::Handler& handler) {
        handler.event = r.number();
        handler.procedure = r.number();
    });
}

void decodeClasses(CodeReader r, CodeImage& code) {
    r.list(code.classes, 13 * kWord, [&](ClassInfo& each) {
        for (auto* value : {&each.name, &each.module, &each.prepare, &each.initialize, &each.terminate,
                            &each.defaultMember, &each.enumerator, &each.predeclared})
            *value = r.number();
        r.variables(each.fields);
        r.list(each.members, 15, [&](ClassMember& member) { readMember(r, member); });
        r.list(each.implementations, 2 * kWord, [&](Implementation& implementation) {
            implementation.interface = r.number();
            r.numbers(implementation.procedures);
        });
        r.list(each.events, 2 * kWord, [&](EventSignature& event) {
            event.name = r.number();
            r.types(event.parameters);
        });
        r.list(each.sinks, 3 * kWord, [&](EventSink& sink) { readSink(r, sink); });
    });
    r.end();
}

void decodeProcedures(CodeReader r, CodeImage& code) {
    std::uint64_t next = 0;
    r.list(code.procedures, 7 * kWord, [&](Procedure& procedure) {
        for (auto* value : {&procedure.name, &procedure.module, &procedure.words, &procedure.numbers,
                            &procedure.parameters, &procedure.resultSlot})
            *value = r.number();
        r.variables(procedure.variables);
        procedure.code = std::uint32_t(next);
        next += procedure.words;
        if (next > code.code.size()) imageIsDamaged("code is missing");
    });
    if (next != code.code.size()) imageIsDamaged("the code is too long");
    r.end();
}

void decodeNumbers(Reader in, std::vector<std::uint64_t>& numbers) {
    constexpr std::size_t kSize = sizeof(std::uint64_t);
    if (in.rest().size() % kSize != 0) imageIsDamaged("a section is too long");
    numbers.resize(in.rest().size() / kSize);
    for (auto& number : numbers) {
        const std::uint64_t low = in.u32();
        number = low | std::uint64_t{in.u32()} << 32;
    }
}

void decodeImports(CodeReader r, CodeImage& code) {
    r.list(code.imports, 3 * kWord, [&](Import& import) {
        import.name = r.number();
        import.result = r.type();
        r.types(import.parameters);
    });
    r.end();
}

void decodeResources(Reader in, std::vector<Resource>& resources) {
    resources.resize(in.count(3 * kWord));
    for (auto& resource : resources) {
        resource.type = in.raw(in.u32());
        resource.name = in.raw(in.u32());
        resource.data = in.raw(in.u32());
    }
    if (!in.atEnd()) imageIsDamaged("a section is too long");
    // They are found by their order.
    if (!areInOrder(resources)) imageIsDamaged("the resources are not in order");
}

} // namespace

CodeImage decodeCode(const Sections& sections, const std::vector<SharedText>& strings) {
    CodeImage code;
    if (std::ranges::none_of(kCodeSections, [&](std::string_view name) { return sections.contains(name); }))
        return code;
    for (const auto name : kCodeSections)
        if (!sections.contains(name)) imageIsDamaged("section " + std::string(name) + " is missing");
    const auto reader = [&](std::string_view name) { return Reader{sections.at(name)}; };
    decodeGlobals({reader(kGlobalSection)}, strings, code);
    decodeTypes({reader(kTypeSection)}, code);
    decodeClasses({reader(kClassSection)}, code);
    code.code = decodeWords(reader(kCodeSection));
    decodeNumbers(reader(kNumberSection), code.numbers);
    decodeProcedures({reader(kProcedureSection)}, code);
    decodeImports({reader(kImportSection)}, code);
    decodeLines(reader(kLineSection), code.procedures);
    decodeStatements(reader(kStatementSection), code.procedures);
    if (sections.contains(kResourceSection)) decodeResources(reader(kResourceSection), code.resources);
    return code;
}

} // namespace image
