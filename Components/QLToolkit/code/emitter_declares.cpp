// Functions of the operating system: devices answer a few of them, whose parameters the table of the language describes.
#include "Basic/error_numbers.h"
#include "Components/Language/library.h"
#include "Components/QLToolkit/code/emitter.h"
#include "Components/QLToolkit/code/library_signature.h"
#include <algorithm>

namespace qltoolkit {

namespace {

Type typeNamed(std::string_view name) {
    if (name == "Long") return {ValueType::Long};
    if (name == "Currency") return {ValueType::Currency};
    return {ValueType::String};
}

const Argument* argumentFor(const Span<Argument>& given, std::uint32_t place, Symbol name) {
    if (place < given.size() && given[place].name == Symbol::None) return &given[place];
    const auto found =
        std::find_if(given.begin(), given.end(), [&](const Argument& each) { return each.name == name; });
    return found == given.end() ? nullptr : &*found;
}

} // namespace

/// The parameters with the types that the function really has, whatever the program declared. Nothing if the arguments cannot
/// be passed so.
std::optional<std::vector<ParameterInfo>> Emitter::answeredParameters(const Entity& entity,
                                                                      const Span<Argument>& given) const {
    const auto& declared = entity.get->parameters;
    if (!entity.answered || entity.answered->parameters.size() != declared.size()) return std::nullopt;
    std::vector<ParameterInfo> parameters(declared.begin(), declared.end());
    for (std::uint32_t i = 0; i < parameters.size(); ++i) {
        const language::Parameter& described = entity.answered->parameters[i];
        ParameterInfo& parameter = parameters[i];
        const Argument* const argument = argumentFor(given, i, parameter.name);
        if (!argument || !argument->value || parameter.type.isArray) return std::nullopt;
        if (described.byRef && argument->byVal) return std::nullopt;
        parameter.byVal = !described.byRef;
        // A number of 64 bits may be a record of two Longs.
        const bool mayBeRecord = described.type == "Any" || (described.byRef && described.type == "Currency");
        const Type natural = typeOfExpr(*argument->value);
        const bool isRecord = natural.value == ValueType::Record && !natural.isArray;
        if (isRecord ? !mayBeRecord || noteOf(*argument->value).kind != OperandKind::Variable : described.type == "Any")
            return std::nullopt;
        parameter.type = isRecord ? natural : typeNamed(described.type);
    }
    return parameters;
}

Value Emitter::declaredCall(const Entity& entity, const Span<Argument>& given) {
    auto parameters = answeredParameters(entity, given);
    if (!parameters) return fail(basic::kFileNotFound, entity.type);
    Callable callable = *entity.get;
    callable.parameters = {parameters->data(), static_cast<std::uint32_t>(parameters->size())};
    NativeCall call;
    arguments(callable, given, call.list);
    for (const auto& each : *parameters)
        call.types.push_back(each.type.value == ValueType::Record ? layout_.referenceTo(each.type)
                                                                  : librarySlotType(each));
    const bool hasResult = entity.answered->kind == language::MemberKind::Function;
    const Value made = finish(call, "Declared." + entity.answered->name,
                              hasResult ? typeNamed(entity.answered->type) : Type{ValueType::None});
    storeBack(call.list);
    if (entity.type.value == ValueType::None) return {entity.type, image::kNoSlot};
    if (hasResult) return convert(made, entity.type);
    const Value zero{entity.type, temporary(entity.type)};
    out_.emit(Op::Clear, zero.slot);
    return zero;
}

} // namespace qltoolkit
