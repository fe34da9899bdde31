#include "Components/Image/verify/table_checks.h"
#include "Components/Image/verify/type_rules.h"

namespace image {

namespace {

/// Checks what is known of a procedure without its code.
class HeadCheck {
public:
    HeadCheck(const Tables& tables, std::uint32_t number)
        : tables_(tables), procedure_(tables.code.procedures[number]), number_(number) {}

    void run() const {
        if (procedure_.name >= tables_.code.texts.size()) refuseHead("has no name");
        if (procedure_.module >= tables_.code.modules.size()) refuseHead("belongs to no module");
        checkVariables();
        checkParameters();
        const auto result = tables_.results[number_];
        if (!isResult(tables_, result) || result.base == BaseType::Half)
            refuseHead("cannot have its result in slot " + std::to_string(procedure_.resultSlot));
        if (procedure_.numbers > tables_.code.numbers.size()) refuseHead("has constants that are missing");
    }

private:
    [[noreturn]] void refuseHead(const std::string& text) const {
        refuse("procedure " + procedureName(tables_.code, number_) + " " + text);
    }
    void checkVariables() const {
        std::uint64_t slots = 0;
        for (std::size_t i = 0; i < procedure_.variables.size(); ++i) {
            const auto type = procedure_.variables[i].type;
            if (!isVariable(tables_, type, true))
                refuseHead("has variable " + std::to_string(i) + ", which cannot be " + tables_.describe(type));
            slots += tables_.shapes.slotsOf(type);
        }
        if (slots > kMostSlots) refuseHead("has too many variables");
    }
    void checkParameters() const {
        if (procedure_.parameters > procedure_.variables.size() || procedure_.parameters > kMostParameters)
            refuseHead("has too many parameters");
        for (std::uint32_t i = 0; i < procedure_.parameters; ++i)
            if (const auto type = procedure_.variables[i].type; !isParameter(tables_, type))
                refuseHead("has parameter " + std::to_string(i) + ", which cannot be " + tables_.describe(type));
    }

    const Tables& tables_;
    const Procedure& procedure_;
    std::uint32_t number_;
};

} // namespace

void checkProcedureHeads(const Tables& tables) {
    std::uint64_t next = 0;
    for (std::uint32_t i = 0; i < tables.code.procedures.size(); ++i) {
        const auto& procedure = tables.code.procedures[i];
        if (procedure.code != next)
            refuse("procedure " + procedureName(tables.code, i) + " does not begin where the one before ends");
        next += procedure.words;
        HeadCheck{tables, i}.run();
    }
    if (next != tables.code.code.size()) refuse("the code does not end with the last procedure");
}

} // namespace image
