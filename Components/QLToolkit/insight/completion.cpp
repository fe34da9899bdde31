#include "Components/QLToolkit/insight/completion.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/insight/offered_words.h"
#include "Components/QLToolkit/insight/signature.h"
#include <algorithm>
#include <iterator>

namespace qltoolkit {

namespace {

bool isAny(const TypedToken* token, std::initializer_list<std::string_view> words) {
    return token && std::any_of(words.begin(), words.end(), [&](auto word) { return token->is(word); });
}

/// The names of the lines that begin with a name and a colon.
void addLabels(NameList& list, std::string_view text) {
    while (!text.empty()) {
        const auto end = text.find('\n');
        auto line = text.substr(0, end);
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        const auto colon = line.find_first_of(":=( \"'");
        if (colon == line.npos || colon == 0 || line[colon] != ':' || line.substr(colon).starts_with(":=")) continue;
        const auto name = line.substr(0, colon);
        if (!basic::equalNoCase(name, "Else")) list.add(std::string(name), NameKind::Label);
    }
}

class OfferedNames {
public:
    OfferedNames(Snapshot& snapshot, const CodePlace& place, std::string_view rest, Wanted wanted)
        : snapshot_(snapshot),
          place_(place),
          rest_(rest),
          wanted_(wanted),
          scope_(*snapshot.program().modules[static_cast<std::size_t>(place.module)].scope),
          statement_(place.before),
          list_(snapshot, scope_) {}

    Offer offer() {
        Offer offer;
        if (statement_.isInText() || statement_.isInNumber()) return offer;
        offer.partial = statement_.partial();
        offer.kind = collect();
        if (offer.kind != OfferKind::Nothing) offer.names = list_.take();
        return offer;
    }

private:
    OfferKind collect() {
        const auto* before = statement_.last();
        if (isAny(before, {".", "!"})) return members();
        if (isAny(before, {"As", "New", "Implements"}) ||
            (isAny(before, {"Is"}) && isAny(statement_.last(2), {"TypeOf"})))
            return types();
        if (isAny(before, {"GoTo", "GoSub", "Resume"})) return labels();
        if (isAny(before, {"RaiseEvent"})) return events();
        if (declaresName(before)) return OfferKind::Nothing;
        if (wanted_ == Wanted::All) return names();
        return values() ? OfferKind::Values : OfferKind::Names;
    }

    OfferKind members() {
        const auto& tokens = statement_.tokens();
        const auto sign = tokens.size() - 1;
        const auto begin = statement_.chainBefore(sign);
        if (begin > 0 && isAny(&tokens[begin - 1], {"As", "New", "Implements"})) return typesOf(begin);
        const auto line = "If " + statement_.textOf(isAttached(sign) ? begin : sign, tokens.size()) + "[?] Then End";
        const Probe probe{snapshot_, place_, statement_.lineBegin(), line};
        if (!probe.base()) return OfferKind::Nothing;
        if (tokens[sign].is("."))
            list_.addMembersOf(*probe.base());
        else
            list_.addControlsOf(*probe.base());
        return OfferKind::Members;
    }

    [[nodiscard]] bool isAttached(std::size_t sign) const {
        return sign > 0 && statement_.tokens()[sign - 1].end == statement_.tokens()[sign].begin;
    }

    OfferKind typesOf(std::size_t begin) {
        const auto name = snapshot_.program().symbols.intern(statement_.tokens()[begin].text);
        if (const Entity* library = snapshot_.program().topNames.find(name))
            list_.addTypesOf(*library, statement_.tokens()[begin - 1].is("New"));
        return OfferKind::Types;
    }

    OfferKind types() {
        list_.addTypes(isAny(statement_.last(), {"New"}));
        if (isAny(statement_.last(), {"As"})) list_.add("New", NameKind::Keyword);
        return OfferKind::Types;
    }

    OfferKind labels() {
        addLabels(list_, place_.before.substr(0, statement_.lineBegin()));
        addLabels(list_, rest_);
        if (isAny(statement_.last(), {"Resume"})) list_.add("Next", NameKind::Keyword);
        return OfferKind::Labels;
    }

    OfferKind events() {
        list_.addEvents();
        return OfferKind::Events;
    }

    /// Whether the user is making up a name: Dim x, Sub f, Const c.
    [[nodiscard]] bool declaresName(const TypedToken* before) const {
        if (isAny(before, {"Dim", "Static", "Const", "Sub", "Function", "Enum", "Type", "Event", "WithEvents"}))
            return !isAny(statement_.last(1), {"Exit", "End"});
        if (isAny(before, {"Get", "Let", "Set"}) && isAny(statement_.last(1), {"Property"})) return true;
        const auto& tokens = statement_.tokens();
        const bool isList = !tokens.empty() && isAny(&tokens.front(), {"Dim", "Static"});
        return isList && isAny(before, {","}) && !isInParentheses();
    }

    [[nodiscard]] bool isInParentheses() const {
        int depth = 0;
        for (const auto& token : statement_.tokens()) depth += token.is("(") - token.is(")");
        return depth > 0;
    }

    /// What is assigned to, compared with or passed as a variable of an enumeration is one of its members.
    bool values() {
        const Type type = wantedType();
        if (!type.isEnum || type.isArray) return false;
        list_.addEnum(type);
        return true;
    }

    [[nodiscard]] Type wantedType() const {
        const auto* before = statement_.last();
        const auto end = statement_.tokens().size();
        if (isAny(before, {"=", "<>", "<", ">"})) {
            const auto begin = statement_.chainBefore(end - 1);
            const Entity* target = entityOf(snapshot_, place_, statement_, begin, end - 1, false);
            return target ? target->type : Type{};
        }
        const auto call = callAt(snapshot_, place_, statement_);
        return call && (isAny(before, {"(", ",", ":="}) || end > 0) ? call->parameterType : Type{};
    }

    OfferKind names() {
        const bool isFirst = statement_.tokens().empty();
        const bool isInProcedure = statement_.lineBegin() > 0;
        const Probe probe{snapshot_, place_, statement_.lineBegin(), ""};
        for (const auto& local : probe.locals())
            if (probe.isBound()) list_.add(local, &probe.source());
        if (isFirst && isInProcedure) addStatementWords(list_);
        if (isFirst && !isInProcedure) addDeclarationWords(list_);
        if (!isFirst) addExpressionWords(list_, scope_.isClass());
        if (isFirst && scope_.isClass()) list_.add("Me", NameKind::Keyword);
        if (!isFirst || isInProcedure) list_.addGlobalNames();
        return OfferKind::Names;
    }

    Snapshot& snapshot_;
    const CodePlace& place_;
    std::string_view rest_;
    Wanted wanted_;
    const Scope& scope_;
    TypedStatement statement_;
    NameList list_;
};

} // namespace

Offer namesAt(Snapshot& snapshot, const CodePlace& place, std::string_view rest, Wanted wanted) {
    return snapshot.has(place.module) ? OfferedNames{snapshot, place, rest, wanted}.offer() : Offer{};
}

} // namespace qltoolkit
