// Searches in texts, and what is made of what they find.
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/library/text_lists.h"
#include "Components/Tamarik/text/pieces.h"
#include "Components/Tamarik/text/search.h"

namespace tamarik {

namespace {

bool isNullIn(const Variant& a, const Variant& b) { return a.kind == kNull || b.kind == kNull; }

/// The first argument may be left out, also of two.
template <class Find>
Variant firstPlace(Session& session, const Variant& a, const Variant& b, const Variant& c, Find find) {
    const bool hasStart = !c.isMissing();
    const Variant &text = hasStart ? b : a, &what = hasStart ? c : b;
    const std::int32_t start = hasStart ? longOr(a, 1) : 1;
    if (isNullIn(text, what)) return null();
    const HeldText heldText(session.heap, textIn(session, text)), heldWhat(session.heap, textIn(session, what));
    session.charge(bytesOf(heldText));
    return ofNumber(find(start, heldText, heldWhat));
}

Variant inStr(Session& session, const Variant& a, const Variant& b, const Variant& c, std::int32_t compare) {
    const auto method = comparisonOf(compare);
    return firstPlace(session, a, b, c, [&](std::int32_t start, const TextBlock* text, const TextBlock* what) {
        return InStr(start, unitsOf(text), unitsOf(what), method);
    });
}

Variant inStrBytes(Session& session, const Variant& a, const Variant& b, const Variant& c, std::int32_t) {
    return firstPlace(session, a, b, c, [&](std::int32_t start, const TextBlock* text, const TextBlock* what) {
        return InStrB(start, bytesIn(text), bytesIn(what));
    });
}

std::int32_t inStrRev(Session& session, std::u16string_view text, std::u16string_view what, std::int32_t start,
                      std::int32_t compare) {
    session.charge(text.size());
    return InStrRev(text, what, start, comparisonOf(compare));
}

Variant strComp(Session& session, const Variant& a, const Variant& b, std::int32_t compareBy) {
    const auto method = comparisonOf(compareBy);
    if (isNullIn(a, b)) return null();
    const HeldText left(session.heap, textIn(session, a)), right(session.heap, textIn(session, b));
    return ofInteger(compare(unitsOf(left), unitsOf(right), method));
}

TextList split(Session& session, std::u16string_view text, const Variant& delimiter, std::int32_t limit,
               std::int32_t compare) {
    const auto method = comparisonOf(compare);
    const HeldText between(session.heap, delimiter.isMissing() ? made(session, u" ") : textIn(session, delimiter));
    return {makeTexts(session, Split(text, unitsOf(between), limit, method))};
}

std::vector<std::u16string_view> viewsOf(const std::vector<std::u16string>& texts) {
    return {texts.begin(), texts.end()};
}

TextBlock* joinList(Session& session, const Variant& list, const Variant& delimiter) {
    const auto texts = textsIn(session, list);
    const HeldText between(session.heap, delimiter.isMissing() ? made(session, u" ") : textIn(session, delimiter));
    return joined(session, viewsOf(texts), unitsOf(between));
}

/// Made of pieces, so that the heap limits what one call may make.
TextBlock* replace(Session& session, std::u16string_view text, std::u16string_view what, std::u16string_view by,
                   std::int32_t start, std::int32_t count, std::int32_t compare) {
    const auto method = comparisonOf(compare);
    requireArgument(start >= 1 && count >= -1);
    const std::int32_t limit = count == -1 || count == kToTheEnd ? -1 : count + 1;
    return joined(session, Split(Mid(text, start), what, limit, method), by);
}

Variant filter(Session& session, const Variant& list, std::u16string_view what, bool include, std::int32_t compare) {
    const auto method = comparisonOf(compare);
    const auto found = Filter(textsIn(session, list), what, include, method);
    return ofArray(makeTexts(session, viewsOf(found)));
}

} // namespace

void addSearches(Natives& natives) {
    natives.add("InStr", native<&inStr>());
    natives.add("InStrB", native<&inStrBytes>());
    natives.add("InStrRev", native<&inStrRev>());
    natives.add("StrComp", native<&strComp>());
    natives.add("Split", native<&split>());
    natives.add("Join", native<&joinList>());
    natives.add("Replace", native<&replace>());
    natives.add("Filter", native<&filter>());
}

} // namespace tamarik
