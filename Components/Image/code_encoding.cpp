#include "Components/Image/code/instruction.h"
#include "Components/Image/code_sections.h"
#include "Components/Image/image_bytes.h"
#include "Components/Image/image_format.h"
#include "Components/Image/line_bytes.h"
#include "Components/Image/word_bytes.h"
#include <utility>

namespace image {

namespace {

/// Writes the parts of code.
struct CodeWriter {
    Writer out;

    void number(std::uint32_t value) { out.u32(value); }
    void count(std::size_t n) { out.u32(std::uint32_t(n)); }
    void type(SlotType value) {
        if (value.id > kMostTypes) imageIsRefused("The application has too many classes or records.");
        out.u32(pack(value));
    }
    void list(const auto& values, auto write) {
        count(values.size());
        for (const auto& each : values) write(each);
    }
    void types(const std::vector<SlotType>& values) {
        list(values, [&](SlotType each) { type(each); });
    }
    void numbers(const std::vector<std::uint32_t>& values) {
        list(values, [&](std::uint32_t each) { number(each); });
    }
    void variables(const std::vector<SlotVariable>& values) {
        list(values, [&](const SlotVariable& each) {
            if (each.type.id > kMostTypes) imageIsRefused("The application has too many classes or records.");
            number(pack(each.type) | (each.isTemporary ? kTemporaryBit : 0));
        });
    }
};

std::string encodeGlobals(const CodeImage& code) {
    CodeWriter w;
    w.count(code.texts.size());
    w.number(code.start);
    w.number(code.codePage);
    w.list(code.modules, [&](const CodeModule& module) {
        w.number(module.name);
        w.number(module.file);
        w.number(module.prepare);
    });
    w.variables(code.globals);
    return std::move(w.out).bytes();
}

std::string encodeTypes(const CodeImage& code) {
    CodeWriter w;
    w.list(code.records, [&](const RecordLayout& record) {
        w.list(record.fields, [&](const RecordField& field) {
            w.type(field.type);
            w.number(field.array);
            w.number(field.fixedLength);
        });
    });
    w.list(code.arrays, [&](const ArrayShape& array) {
        w.type(array.element);
        w.number(array.fixedLength);
        w.list(array.bounds, [&](const ArrayShape::Bounds& bounds) {
            w.number(std::uint32_t(bounds.lower));
            w.number(std::uint32_t(bounds.upper));
        });
    });
    return std::move(w.out).bytes();
}

void writeParameter(CodeWriter& w, const MemberParameter& parameter) {
    const DefaultValue& value = parameter.byDefault;
    w.number(parameter.name);
    w.out.u8(std::uint8_t(parameter.type));
    w.out.u8(std::uint8_t(parameter.isOptional));
    w.out.u8(std::uint8_t(value.type));
    if (value.type == BaseType::None) return;
    w.number(std::uint32_t(value.bits));
    w.number(std::uint32_t(value.bits >> 32));
}

void writeMember(CodeWriter& w, const ClassMember& member) {
    w.number(member.name);
    w.number(member.target);
    w.out.u8(std::uint8_t(member.use));
    w.out.u8(std::uint8_t((member.isPublic ? kPublicFlag : 0) | (member.hasParamArray ? kParamArrayFlag : 0)));
    w.out.u8(std::uint8_t(member.result));
    w.list(member.parameters, [&](const MemberParameter& parameter) { writeParameter(w, parameter); });
}

void writeSink(CodeWriter& w, const EventSink& sink) {
    w.number(sink.field);
    w.number(sink.source);
    w.list(sink.handlers, [&](const EventSink::Handler& handler) {
        w.number(handler.event);
        w.number(handler.procedure);
    });
}

std::string encodeClasses(const CodeImage& code) {
    CodeWriter w;
    w.list(code.classes, [&](const ClassInfo& each) {
        for (const auto value : {each.name, each.module, each.prepare, each.initialize, each.terminate,
                                 each.defaultMember, each.enumerator, each.predeclared})
            w.number(value);
        w.variables(each.fields);
        w.list(each.members, [&](const ClassMember& member) { writeMember(w, member); });
        w.list(each.implementations, [&](const Implementation& implementation) {
            w.number(implementation.interface);
            w.numbers(implementation.procedures);
        });
        w.list(each.events, [&](const EventSignature& event) {
            w.number(event.name);
            w.types(event.parameters);
        });
        w.list(each.sinks, [&](const EventSink& sink) { writeSink(w, sink); });
    });
    return std::move(w.out).bytes();
}

/// The code of a procedure begins where that of the one before ends, so only its length is written.
std::string encodeProcedures(const CodeImage& code) {
    CodeWriter w;
    std::uint64_t next = 0;
    w.list(code.procedures, [&](const Procedure& procedure) {
        if (procedure.code != next) imageIsRefused("The code of the procedures is not in their order.");
        next += procedure.words;
        for (const auto value : {procedure.name, procedure.module, procedure.words, procedure.numbers,
                                 procedure.parameters, procedure.resultSlot})
            w.number(value);
        w.variables(procedure.variables);
    });
    if (next != code.code.size()) imageIsRefused("The code has words that belong to no procedure.");
    return std::move(w.out).bytes();
}

std::string encodeNumbers(const CodeImage& code) {
    Writer out;
    for (const auto number : code.numbers) {
        out.u32(std::uint32_t(number));
        out.u32(std::uint32_t(number >> 32));
    }
    return std::move(out).bytes();
}

std::string encodeImports(const CodeImage& code) {
    CodeWriter w;
    w.list(code.imports, [&](const Import& import) {
        w.number(import.name);
        w.type(import.result);
        w.types(import.parameters);
    });
    return std::move(w.out).bytes();
}

void addBytes(Writer& out, std::string_view bytes) {
    out.u32(std::uint32_t(bytes.size()));
    out.raw(bytes);
}

std::string encodeResources(const std::vector<Resource>& resources) {
    if (!areInOrder(resources)) imageIsRefused("The resources are not in order.");
    Writer out;
    out.u32(std::uint32_t(resources.size()));
    for (const auto& resource : resources) {
        addBytes(out, resource.type);
        addBytes(out, resource.name);
        addBytes(out, resource.data);
    }
    return std::move(out).bytes();
}

} // namespace

std::vector<EncodedSection> encodeCode(const CodeImage& code) {
    if (code == CodeImage{}) return {};
    std::vector<EncodedSection> sections{{kGlobalSection, encodeGlobals(code)},
                                         {kTypeSection, encodeTypes(code)},
                                         {kClassSection, encodeClasses(code)},
                                         {kProcedureSection, encodeProcedures(code)},
                                         {kCodeSection, encodeWords(code.code)},
                                         {kNumberSection, encodeNumbers(code)},
                                         {kImportSection, encodeImports(code)},
                                         {kLineSection, encodeLines(code.procedures)},
                                         {kStatementSection, encodeStatements(code.procedures)}};
    if (!code.resources.empty()) sections.emplace_back(kResourceSection, encodeResources(code.resources));
    return sections;
}

} // namespace image
