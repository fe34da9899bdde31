#include "Components/Image/verify/table_checks.h"
#include "Components/Image/verify/type_rules.h"
#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <span>

namespace image {

namespace {

/// The days around those of the years 100 to 9999.
constexpr double kBeforeDates = -657435, kAfterDates = 2958466;

/// Checks a class: what the runtime calls by itself must take what the runtime passes.
class ClassCheck {
public:
    ClassCheck(const Tables& tables, std::uint32_t number)
        : tables_(tables), code_(tables.code), class_(tables.code.classes[number - 1]), number_(number) {}

    void run() const {
        if (class_.name >= code_.texts.size()) refuse("class " + std::to_string(number_) + " has no name");
        if (class_.module >= code_.modules.size()) refuseClass("belongs to no module");
        checkFields();
        for (std::size_t i = 0; i < class_.members.size(); ++i) checkMember(i);
        checkOwn("prepare", class_.prepare);
        checkOwn("initialize", class_.initialize);
        checkOwn("terminate", class_.terminate);
        if (class_.defaultMember != kNone && class_.defaultMember >= code_.texts.size())
            refuseClass("has a default member without a name");
        checkEnumerator();
        checkPredeclared();
        for (const auto& implementation : class_.implementations) checkImplementation(implementation);
        for (std::size_t i = 0; i < class_.events.size(); ++i) checkEvent(i);
        for (const auto& sink : class_.sinks) checkSink(sink);
    }

private:
    [[noreturn]] void refuseClass(const std::string& text) const {
        refuse("class " + className(code_, number_) + " " + text);
    }
    [[noreturn]] void refuseProcedure(const std::string& use, std::uint32_t procedure, const std::string& text) const {
        refuseClass("has " + procedureName(code_, procedure) + " as " + use + ", which " + text);
    }
    [[nodiscard]] const SlotSequence& fields() const { return tables_.fields[number_ - 1]; }
    /// The parameters of a procedure of this class after Me.
    [[nodiscard]] std::span<const SlotVariable> ownParameters(const std::string& use, std::uint32_t number) const {
        if (number >= code_.procedures.size()) refuseProcedure(use, number, "does not exist");
        const auto& procedure = code_.procedures[number];
        if (procedure.parameters == 0 ||
            procedure.variables[0].type != SlotType{BaseType::Object, TypeForm::Value, number_})
            refuseProcedure(use, number, "does not begin with an object of the class");
        return {procedure.variables.data() + 1, procedure.parameters - 1};
    }

    void checkFields() const {
        for (std::size_t i = 0; i < class_.fields.size(); ++i)
            if (const auto type = class_.fields[i].type; !isVariable(tables_, type, false))
                refuseClass("has field " + std::to_string(i) + ", which cannot be " + tables_.describe(type));
        if (fields().slots() > kMostFieldSlots) refuseClass("has too many fields");
    }

    void checkMember(std::size_t index) const {
        const auto& member = class_.members[index];
        if (member.name >= code_.texts.size()) refuseClass("has member " + std::to_string(index) + " without a name");
        const auto use = "member " + textNumbered(code_, member.name);
        if (member.use == MemberUse::Field)
            checkFieldMember(use, member);
        else
            checkMethod(use, member);
    }
    void checkFieldMember(const std::string& use, const ClassMember& member) const {
        const auto place = fields().at(member.target);
        const bool isValue = place.offset == 0 && place.type != SlotType{} &&
                             (place.type.form != TypeForm::Value || place.type.base != BaseType::Record);
        if (!isValue) refuseClass("has " + use + " for slot " + std::to_string(member.target) + ", which is no field");
        if (slotBase(member.result) != slotBase(place.type.base) || !member.parameters.empty())
            refuseClass("has " + use + ", which does not match its field");
    }
    void checkMethod(const std::string& use, const ClassMember& member) const {
        const auto parameters = ownParameters(use, member.target);
        const auto matches = [](const MemberParameter& declared, const SlotVariable& parameter) {
            return slotBase(declared.type) == slotBase(parameter.type.base);
        };
        if (!std::ranges::equal(member.parameters, parameters, matches))
            refuseProcedure(use, member.target, "has other parameters");
        for (const auto& parameter : member.parameters) checkParameter(use, parameter);
        const auto result = tables_.results[member.target];
        const bool writesRecord = member.result == BaseType::Record && result == SlotType{} && !parameters.empty() &&
                                  parameters[0].type.form == TypeForm::Reference;
        if (slotBase(member.result) != slotBase(result.base) && !writesRecord)
            refuseProcedure(use, member.target, "has another result");
        const bool assigns = member.use == MemberUse::Let || member.use == MemberUse::Set;
        if (assigns && parameters.empty()) refuseProcedure(use, member.target, "takes no value");
        if (member.hasParamArray && !takesVariants(parameters))
            refuseProcedure(use, member.target, "does not end with an array of Variants");
    }
    void checkParameter(const std::string& use, const MemberParameter& parameter) const {
        if (parameter.name != kNone && parameter.name >= code_.texts.size())
            refuseClass("has " + use + " with a parameter without a name");
        if (!isDefault(parameter.byDefault)) refuseClass("has " + use + " with a default value that does not exist");
    }
    [[nodiscard]] bool isDefault(const DefaultValue& value) const {
        const auto number = static_cast<std::int32_t>(value.bits);
        const auto fraction = std::bit_cast<double>(value.bits);
        switch (value.type) {
        case BaseType::None:
        case BaseType::Currency: return true;
        case BaseType::Boolean: return number == 0 || number == -1;
        case BaseType::Byte: return number >= 0 && number <= 255;
        case BaseType::Integer: return number == static_cast<std::int16_t>(number);
        case BaseType::Long: return true;
        case BaseType::Single: return std::abs(fraction) <= double{std::numeric_limits<float>::max()};
        case BaseType::Double: return std::isfinite(fraction);
        case BaseType::Date: return fraction > kBeforeDates && fraction < kAfterDates;
        case BaseType::Text: return value.bits < code_.texts.size();
        case BaseType::Variant: return value.bits <= 1;
        default: return false;
        }
    }
    static bool takesVariants(std::span<const SlotVariable> parameters) {
        return !parameters.empty() && parameters.back().type == SlotType{BaseType::Variant, TypeForm::Array};
    }

    void checkOwn(const char* use, std::uint32_t procedure) const {
        if (procedure == kNone) return;
        if (!ownParameters(use, procedure).empty()) refuseProcedure(use, procedure, "has further parameters");
        if (tables_.results[procedure] != SlotType{}) refuseProcedure(use, procedure, "has a result");
    }
    void checkEnumerator() const {
        if (class_.enumerator == kNone) return;
        if (!ownParameters("enumerator", class_.enumerator).empty())
            refuseProcedure("enumerator", class_.enumerator, "has further parameters");
        const auto result = tables_.results[class_.enumerator];
        if (result != SlotType{BaseType::Object} && result != SlotType{BaseType::Variant})
            refuseProcedure("enumerator", class_.enumerator, "does not return an object of any class");
    }
    void checkPredeclared() const {
        if (class_.predeclared == kNone) return;
        const auto type = tables_.shapes.typeAt(tables_.globals, class_.predeclared);
        if (type != SlotType{BaseType::Object, TypeForm::Value, number_})
            refuseClass("has its object in the global slot " + std::to_string(class_.predeclared) + ", which is " +
                        tables_.describe(type));
    }

    void checkImplementation(const Implementation& implementation) const {
        const auto number = implementation.interface;
        if (number == 0 || number > code_.classes.size() || number == number_)
            refuseClass("implements " + className(code_, number) + ", which is no other class");
        const auto& members = code_.classes[number - 1].members;
        if (implementation.procedures.size() != members.size())
            refuseClass("does not implement every member of " + className(code_, number));
        for (std::size_t i = 0; i < members.size(); ++i) checkImplements(members[i], implementation.procedures[i]);
    }
    /// Other classes call the public methods of an interface alone.
    void checkImplements(const ClassMember& member, std::uint32_t procedure) const {
        const bool isCalled = member.isPublic && member.use != MemberUse::Field;
        if (procedure == kNone && !isCalled) return;
        const auto use = "implementation of " + textNumbered(code_, member.name);
        const auto parameters = ownParameters(use, procedure);
        if (member.use == MemberUse::Field || member.target >= code_.procedures.size())
            refuseProcedure(use, procedure, "is no method");
        const auto& declared = code_.procedures[member.target];
        const bool isSame = declared.parameters == parameters.size() + 1 &&
                            std::ranges::equal(parameters, std::span(declared.variables).subspan(1, parameters.size()),
                                               {}, &SlotVariable::type, &SlotVariable::type);
        if (!isSame || tables_.results[procedure] != tables_.results[member.target])
            refuseProcedure(use, procedure, "has other parameters or another result");
    }

    void checkEvent(std::size_t index) const {
        const auto& event = class_.events[index];
        if (event.name >= code_.texts.size()) refuseClass("has event " + std::to_string(index) + " without a name");
        const auto name = textNumbered(code_, event.name);
        if (event.parameters.size() > kMostParameters) refuseClass("has event " + name + " with too many parameters");
        for (const auto type : event.parameters)
            if (!isParameter(tables_, type))
                refuseClass("has event " + name + " with a parameter that cannot be " + tables_.describe(type));
    }
    void checkSink(const EventSink& sink) const {
        if (sink.source == 0 || sink.source > code_.classes.size())
            refuseClass("handles events of " + className(code_, sink.source) + ", which does not exist");
        const auto type = tables_.shapes.typeAt(fields(), sink.field);
        if (type != SlotType{BaseType::Object, TypeForm::Value, sink.source})
            refuseClass("handles events of " + className(code_, sink.source) + " in slot " +
                        std::to_string(sink.field) + ", which is " + tables_.describe(type));
        for (const auto& handler : sink.handlers) checkHandler(code_.classes[sink.source - 1], handler);
    }
    void checkHandler(const ClassInfo& source, const EventSink::Handler& handler) const {
        if (handler.event >= source.events.size())
            refuseClass("handles event " + std::to_string(handler.event) + " of " + textNumbered(code_, source.name) +
                        ", which does not exist");
        const auto& event = source.events[handler.event];
        const auto use = "handler of " + textNumbered(code_, event.name);
        const auto parameters = ownParameters(use, handler.procedure);
        if (!std::ranges::equal(parameters, event.parameters, {}, &SlotVariable::type))
            refuseProcedure(use, handler.procedure, "has other parameters");
        if (tables_.results[handler.procedure] != SlotType{}) refuseProcedure(use, handler.procedure, "has a result");
    }

    const Tables& tables_;
    const CodeImage& code_;
    const ClassInfo& class_;
    std::uint32_t number_;
};

} // namespace

void checkClasses(const Tables& tables) {
    for (std::uint32_t i = 1; i <= tables.code.classes.size(); ++i) ClassCheck{tables, i}.run();
}

} // namespace image
