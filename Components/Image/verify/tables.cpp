#include "Components/Image/verify/tables.h"
#include <algorithm>

namespace image {

Tables::Tables(const CodeImage& image) : code(image), shapes(image.records), globals(shapes.sequenceOf(image.globals)) {
    fields.reserve(code.classes.size());
    for (const auto& each : code.classes) {
        fields.push_back(shapes.sequenceOf(each.fields));
        auto& sources = sources_.emplace_back();
        for (const auto& sink : each.sinks) sources.push_back(sink.field);
        std::ranges::sort(sources);
    }
    results.reserve(code.procedures.size());
    SlotSequence variables;
    for (const auto& procedure : code.procedures) {
        if (procedure.resultSlot != kNoSlot) shapes.assign(variables, procedure.variables);
        results.push_back(procedure.resultSlot == kNoSlot ? SlotType{} : resultIn(variables, procedure.resultSlot));
    }
}

SlotType Tables::resultIn(const SlotSequence& variables, std::uint32_t slot) const {
    const auto type = shapes.typeAt(variables, slot);
    return type == SlotType{} ? SlotType{BaseType::Half} : type;
}

bool Tables::isSource(std::uint32_t classNumber, std::uint32_t field) const {
    return std::ranges::binary_search(sources_[classNumber - 1], field);
}

} // namespace image
