#include "Components/Tamarik/library/text_lists.h"
#include <algorithm>

namespace tamarik {

using image::BaseType;

namespace {

const ArrayBlock& listIn(const Variant& v) {
    if (!v.isArray()) throw basic::RuntimeError(basic::kTypeMismatch);
    if (!v.array || v.array->bounds.empty()) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    const BaseType base = v.array->element.type.base;
    requireArgument(v.array->bounds.size() == 1 && (base == BaseType::Text || base == BaseType::Variant));
    return *v.array;
}

} // namespace

std::vector<std::u16string> textsIn(Session& session, const Variant& v) {
    const ArrayBlock& list = listIn(v);
    std::vector<std::u16string> texts;
    texts.reserve(list.size);
    session.charge(std::uint64_t{list.size} * sizeof(Slot));
    for (std::uint32_t i = 0; i < list.size; ++i) {
        const Variant element = elementAt(session.heap, list, i);
        const HeldText held(session.heap, element.kind == kString ? element.text : textOf(session.heap, element));
        texts.emplace_back(unitsOf(held));
    }
    return texts;
}

ArrayBlock* makeTexts(Session& session, std::span<const std::u16string_view> texts) {
    const Bounds bounds{0, static_cast<std::int32_t>(texts.size()) - 1};
    HeldBlock<ArrayBlock> array(session.heap, makeArray(session.heap, {{BaseType::Text}}, {&bounds, 1}));
    for (std::size_t i = 0; i < texts.size(); ++i) array->as<Slot>()[i].text = made(session, texts[i]);
    return array.take();
}

TextBlock* joined(Session& session, std::span<const std::u16string_view> pieces, std::u16string_view delimiter) {
    if (pieces.empty()) return nullptr;
    std::uint64_t units = std::uint64_t{delimiter.size()} * (pieces.size() - 1);
    for (const auto piece : pieces) units += piece.size();
    session.charge(2 * units);
    TextBlock* const text = makeRoom(session.heap, 2 * units);
    if (!text) return nullptr;
    char16_t* to = text->units();
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (i != 0) to = std::copy(delimiter.begin(), delimiter.end(), to);
        to = std::copy(pieces[i].begin(), pieces[i].end(), to);
    }
    return text;
}

} // namespace tamarik
