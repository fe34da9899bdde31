#include "Components/QLToolkit/insight/renaming.h"
#include "Components/QLToolkit/insight/code_words.h"
#include "Components/QLToolkit/insight/rename_rules.h"
#include "Components/QLToolkit/insight/rename_texts.h"
#include "Components/QLToolkit/names/handlers.h"
#include <algorithm>
#include <tuple>
#include <utility>

namespace qltoolkit {

namespace {

namespace texts = rename_texts;

// ---- what is not known ----------------------------------------------------------------------------------------------

/// The procedure around a position; null outside of procedures.
const ProcedureDecl* procedureAt(const Module& tree, Pos pos) {
    for (const auto* decl = tree.declarations; decl; decl = decl->next)
        if (decl->kind == DeclKind::Procedure && decl->pos <= pos && pos <= as<ProcedureDecl>(*decl).end)
            return &as<ProcedureDecl>(*decl);
    return nullptr;
}

/// Finds the words that may mean a name but were not bound.
class UnknownWords {
public:
    UnknownWords(const ProgramInput& input, const References& found)
        : input_(input), found_(found), meaning_(*found.meaning()) {
        const auto* around = meaning_.isLocal() ? procedureAt(meaning_.declaredIn->tree, meaning_.declaredAt) : nullptr;
        if (around) extent_ = {around->pos, around->end};
        isParameter_ = meaning_.isLocal() && (!around || isIn(around->signature.parameters));
    }

    std::vector<Reference> all() const {
        std::vector<Reference> unknown;
        const auto own = found_.uses().sourceOf(*meaning_.declaredIn);
        for (std::size_t i = 0; i < input_.sources.size(); ++i) {
            if (i != own && !meaning_.isShared() && !isParameter_) continue;
            for (const auto& word : wordsLike(*input_.sources[i], found_.name())) {
                const NamePlace place{i, word.begin, word.end - word.begin};
                if (mayMean(word, i == own) && !isBound(place))
                    unknown.push_back({place, false, false, found_.lineOf(place)});
            }
        }
        return unknown;
    }

private:
    [[nodiscard]] bool isBound(const NamePlace& place) const {
        const auto& uses = found_.uses().all();
        const auto at =
            std::lower_bound(uses.begin(), uses.end(), place,
                             [](const NameUse& use, const NamePlace& wanted) { return use.place < wanted; });
        return at != uses.end() && at->place == place;
    }

    [[nodiscard]] bool isIn(const Span<Parameter>& parameters) const {
        return std::any_of(parameters.begin(), parameters.end(),
                           [&](const Parameter& each) { return each.pos == meaning_.declaredAt; });
    }

    [[nodiscard]] bool mayMean(const CodeWord& word, bool isOwn) const {
        if (word.namesArgument) return isParameter_;
        if (word.isMember) return meaning_.isMember();
        return !meaning_.isLocal() || (isOwn && extent_.first <= word.begin && word.begin <= extent_.second);
    }

    const ProgramInput& input_;
    const References& found_;
    const NameMeaning& meaning_;
    std::pair<Pos, Pos> extent_{1, 0}; // of the procedure
    bool isParameter_ = false;
};

// ---- whether meanings change ----------------------------------------------------------------------------------------

/// An error or warning, by its place.
struct Fault {
    std::size_t source;
    std::uint32_t line;
    int number;
    std::string text;

    friend bool operator<(const Fault& a, const Fault& b) {
        return std::tie(a.source, a.line, a.number) < std::tie(b.source, b.line, b.number);
    }
};

std::vector<Fault> faultsOf(const Snapshot& snapshot, const NameUses& uses) {
    std::vector<Fault> faults;
    for (const auto& module : snapshot.program().modules)
        for (const auto& each : module.diagnostics.all())
            faults.push_back({uses.sourceOf(module), each.line, each.number, each.text});
    std::sort(faults.begin(), faults.end());
    return faults;
}

/// Where the bytes of a program are after some names got another length.
class MovedPlaces {
public:
    /// The places are sorted.
    MovedPlaces(const ProgramInput& input, const std::vector<Reference>& places, const std::string& newName) {
        std::size_t source = input.sources.size();
        std::ptrdiff_t moved = 0, length = 0;
        for (const auto& [place, isDeclaration, isPart, line] : places) {
            if (std::exchange(source, place.source) != place.source) {
                moved = 0;
                length = static_cast<std::ptrdiff_t>(input.sources[source]->codePage().encode(newName).size());
            }
            const auto begin = static_cast<std::ptrdiff_t>(place.pos) + moved;
            moved += length - static_cast<std::ptrdiff_t>(place.length);
            changes_.push_back({{source, static_cast<Pos>(begin), 0}, moved});
        }
    }

    /// Where something at this place was before.
    [[nodiscard]] NamePlace before(NamePlace place) const {
        const NamePlace begin{place.source, place.pos, 0};
        const auto next = std::lower_bound(changes_.begin(), changes_.end(), begin,
                                           [](const Change& change, const NamePlace& at) { return change.place < at; });
        if (next == changes_.begin() || std::prev(next)->place.source != place.source) return place;
        place.pos = static_cast<Pos>(static_cast<std::ptrdiff_t>(place.pos) - std::prev(next)->moved);
        return place;
    }

private:
    struct Change {
        NamePlace place;      ///< now
        std::ptrdiff_t moved; ///< what follows it
    };
    std::vector<Change> changes_;
};

/// Compares what names mean before and after a change of one of them.
class MeaningComparison {
public:
    MeaningComparison(const NameUses& before, const NameUses& after, MovedPlaces moved)
        : before_(before), after_(after), moved_(std::move(moved)) {}

    /// Returns the first use with another meaning, at its place before the change; nothing if there is none.
    [[nodiscard]] std::optional<NamePlace> difference() {
        const auto& old = before_.all();
        const auto& now = after_.all();
        const auto common = std::min(old.size(), now.size());
        for (std::size_t i = 0; i < common; ++i)
            if (!isSame(old[i], now[i])) return std::min(old[i].place, moved_.before(now[i].place));
        if (common < old.size()) return old[common].place;
        return common < now.size() ? std::optional(moved_.before(now[common].place)) : std::nullopt;
    }

private:
    bool isSame(const NameUse& old, const NameUse& now) {
        const auto place = moved_.before(now.place);
        if (old.place.source != place.source || old.place.pos != place.pos || old.isPart != now.isPart) return false;
        const auto& a = before_.meaning(old);
        const auto& b = after_.meaning(now);
        if (a.kind != b.kind || !(a.presentType() == b.presentType())) return false;
        return nowOf_.try_emplace(old.meaning, now.meaning).first->second == now.meaning &&
               oldOf_.try_emplace(now.meaning, old.meaning).first->second == old.meaning;
    }

    const NameUses& before_;
    const NameUses& after_;
    MovedPlaces moved_;
    std::map<std::size_t, std::size_t> nowOf_, oldOf_;
};

class RenameCheck {
public:
    RenameCheck(const ProgramInput& input, const Renaming& renaming, const std::string& newName,
                const Following& following)
        : input_(input), renaming_(renaming), newName_(newName), following_(following) {}

    std::string refusal() {
        ProgramInput renamed{{}, input_.constants, input_.options};
        for (std::size_t i = 0; i < input_.sources.size(); ++i) {
            const auto& source = *input_.sources[i];
            auto bytes = renamedBytes(input_, i, renaming_.places, newName_);
            if (!bytes) return filled(texts::kNotEncoded, {newName_, source.name()});
            renamed.sources.push_back(
                std::make_shared<SourceText>(source.name(), std::move(*bytes), source.codePage()));
        }
        auto names = partsOfName(newName_);
        for (const auto& name : {newName_, renaming_.name}) names.push_back(name);
        const References before{input_, renaming_.source, renaming_.pos, half(0), names};
        NameUses uses{renamed.sources, names};
        const Snapshot after{renamed, uses, half(1)};
        uses.finish();
        return following_.stop.stop_requested() ? std::string() : compare(before, after, uses);
    }

private:
    [[nodiscard]] Following half(std::size_t index) const {
        return {following_.stop,
                [this, index](std::size_t done, std::size_t all) { following_.progress(done + index * all, 2 * all); }};
    }

    [[nodiscard]] std::vector<std::string> at(const References& before, const NamePlace& place) const {
        return placeParts(newName_, input_, before, place);
    }
    [[nodiscard]] std::vector<std::string> firstPlace(const References& before) const {
        return at(before, renaming_.places.front().place);
    }

    std::string compare(const References& before, const Snapshot& after, const NameUses& uses) const {
        if (mayBeStart(*before.meaning(), newName_)) return texts::kMain;
        if (after.syntaxErrors() > 0 || isOwn(before))
            return filled(after.syntaxErrors() > 0 ? texts::kNotHere : texts::kChanges, firstPlace(before));
        const auto old = faultsOf(before.snapshot(), before.uses()), now = faultsOf(after, uses);
        if (auto added = firstAdded(before, old, now); !added.empty()) return added;
        const auto changed = MeaningComparison{before.uses(), uses, {input_, renaming_.places, newName_}}.difference();
        if (changed) return filled(texts::kChanges, at(before, *changed));
        return old.size() == now.size() ? std::string() : filled(texts::kChanges, firstPlace(before));
    }

    [[nodiscard]] std::string firstAdded(const References& before, const std::vector<Fault>& old,
                                         const std::vector<Fault>& now) const {
        std::vector<Fault> added;
        std::set_difference(now.begin(), now.end(), old.begin(), old.end(), std::back_inserter(added));
        if (added.empty()) return {};
        const auto& source = *input_.sources[added[0].source];
        auto parts = at(before, {added[0].source, source.lineStart(std::max(added[0].line, 1U)), 0});
        parts.push_back(added[0].text);
        return filled(texts::kWouldFail, parts);
    }

    /// The class of the module would call the procedure.
    [[nodiscard]] bool isOwn(const References& before) const {
        const auto& meaning = *before.meaning();
        const bool isProcedure = meaning.kind == EntityKind::Procedure || meaning.kind == EntityKind::Property;
        return isProcedure && isOwnHandler(before.snapshot().program(), *meaning.declaredIn, newName_);
    }

    const ProgramInput& input_;
    const Renaming& renaming_;
    const std::string& newName_;
    const Following& following_;
};

} // namespace

Renaming renamingAt(const ProgramInput& input, std::size_t source, Pos pos, const Following& following) {
    const References found{input, source, pos, following, partsOfName(nameAround(*input.sources[source], pos))};
    Renaming renaming{source, pos, found.name(), refusalToRename(input, found), {}, {}};
    if (!renaming.refusal.empty()) return renaming;
    renaming.places = found.all();
    renaming.unknown = UnknownWords{input, found}.all();
    return renaming;
}

std::string refusalOf(const ProgramInput& input, const Renaming& renaming, const std::string& newName,
                      const Following& following) {
    if (auto why = refusalOfSpelling(newName); !why.empty()) return why;
    return RenameCheck{input, renaming, newName, following}.refusal();
}

std::optional<std::string> renamedBytes(const ProgramInput& input, std::size_t source,
                                        const std::vector<Reference>& places, const std::string& newName) {
    const auto& text = *input.sources[source];
    std::string bytes;
    Pos done = 0;
    for (const auto& [place, isDeclaration, isPart, line] : places) {
        if (place.source != source) continue;
        const auto encoded = text.codePage().tryEncode(newName);
        if (!encoded) return std::nullopt;
        bytes.append(text.text(done, place.pos)).append(*encoded);
        done = place.pos + place.length;
    }
    return bytes.append(text.text(done, text.size()));
}

} // namespace qltoolkit
