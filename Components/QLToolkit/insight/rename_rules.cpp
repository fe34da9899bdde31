#include "Components/QLToolkit/insight/rename_rules.h"
#include "Basic/case_folding.h"
#include "Basic/utf8.h"
#include "Basic/vb_words.h"
#include "Components/QLToolkit/insight/rename_texts.h"
#include "Components/QLToolkit/lexer/lexer.h"
#include "Components/QLToolkit/names/handlers.h"
#include "Components/QLToolkit/source/characters.h"
#include <algorithm>

namespace qltoolkit {

namespace {

namespace texts = rename_texts;

class RenameRules {
public:
    RenameRules(const ProgramInput& input, const References& found)
        : input_(input), found_(found), meaning_(*found.meaning()) {}

    [[nodiscard]] std::string refusal() const {
        if (!meaning_.declaredIn && meaning_.kind != EntityKind::Project) return say(texts::kOfLibrary);
        switch (meaning_.kind) {
        case EntityKind::Module: return say(texts::kModule);
        case EntityKind::Project: return say(texts::kProject);
        case EntityKind::Control: return say(texts::kControl);
        case EntityKind::Event: return say(texts::kEvent);
        case EntityKind::Label: return charIs(found_.name()[0], kDigit) ? say(texts::kLineNumber) : std::string();
        case EntityKind::Procedure:
        case EntityKind::Property:
            if (auto why = ofProcedure(); !why.empty()) return why;
            break;
        default: break;
        }
        return isStored() ? say(texts::kStored) : ofHandlers();
    }

private:
    [[nodiscard]] std::string say(std::string_view text) const { return filled(text, {found_.name()}); }

    [[nodiscard]] std::string ofProcedure() const {
        if (mayBeStart(meaning_, found_.name())) return texts::kMain;
        if (isHandler()) return say(texts::kHandler);
        return isDeclared() ? say(texts::kDeclared) : std::string();
    }

    /// Parts of the name have a meaning where it is declared.
    [[nodiscard]] bool isHandler() const {
        if (isOwnHandler(found_.snapshot().program(), *meaning_.declaredIn, found_.name())) return true;
        const auto& uses = found_.uses().all();
        return std::any_of(uses.begin(), uses.end(), [&](const NameUse& part) {
            return part.isPart && std::any_of(found_.all().begin(), found_.all().end(), [&](const Reference& whole) {
                       return whole.isDeclaration && whole.place.source == part.place.source &&
                              whole.place.pos <= part.place.pos &&
                              part.place.pos < whole.place.pos + whole.place.length;
                   });
        });
    }

    [[nodiscard]] bool isDeclared() const {
        const auto& all = meaning_.declaredIn->callables;
        return std::any_of(all.begin(), all.end(), [&](const auto& each) {
            return each.first == meaning_.entity && each.second->kind == DeclKind::Declare &&
                   !as<DeclareDecl>(*each.second).alias;
        });
    }

    /// The properties of controls, which forms have in their descriptions.
    [[nodiscard]] bool isStored() const {
        const auto kind = meaning_.declaredIn->tree.source.kind();
        return meaning_.isShared() && (kind == FileKind::UserControl || kind == FileKind::PropertyPage);
    }

    [[nodiscard]] std::string ofHandlers() const {
        const auto named =
            std::find_if(found_.all().begin(), found_.all().end(), [](const Reference& each) { return each.isPart; });
        if (named == found_.all().end()) return {};
        const auto parts = placeParts(found_.name(), input_, found_, named->place);
        return filled(texts::kHasHandlers, parts);
    }

    const ProgramInput& input_;
    const References& found_;
    const NameMeaning& meaning_;
};

bool isWord(std::string_view name) {
    const auto words = basic::vbWords();
    return std::any_of(words.begin(), words.end(), [&](const basic::VbWordInfo& word) {
        const bool namesNothing = word.kind == basic::VbWordKind::Reserved || word.kind == basic::VbWordKind::Type ||
                                  word.kind == basic::VbWordKind::Conversion;
        return namesNothing && basic::equalNoCase(word.text, name);
    });
}

} // namespace

std::string filled(std::string_view text, const std::vector<std::string>& parts) {
    std::string made;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 1 < text.size())
            made += parts[static_cast<std::size_t>(text[++i] - '1')];
        else
            made += text[i];
    }
    return made;
}

std::vector<std::string> placeParts(const std::string& name, const ProgramInput& input, const References& found,
                                    const NamePlace& place) {
    return {name, input.sources[place.source]->name(), std::to_string(found.lineOf(place))};
}

std::string refusalToRename(const ProgramInput& input, const References& found) {
    if (found.name().empty()) return texts::kNoName;
    if (found.snapshot().syntaxErrors() > 0) return texts::kSyntaxErrors;
    if (!found.snapshot().isBound()) return texts::kManyErrors;
    if (isWord(found.name())) return filled(texts::kKeyword, {found.name()});
    if (!found.meaning()) return filled(texts::kNotKnown, {found.name()});
    return RenameRules{input, found}.refusal();
}

std::string refusalOfSpelling(std::string_view name) {
    const auto isPart = [](char c) { return charIs(c, kNamePart | kForeign); };
    const bool isName = !name.empty() && charIs(name[0], kNameStart) && std::all_of(name.begin(), name.end(), isPart);
    if (!isName) return filled(texts::kInvalid, {std::string(name)});
    if (name.size() > Lexer::kMaxNameBytes) return filled(texts::kTooLong, {std::to_string(Lexer::kMaxNameBytes)});
    return isWord(name) ? filled(texts::kKeyword, {std::string(name)}) : std::string();
}

bool mayBeStart(const NameMeaning& meaning, std::string_view name) {
    return meaning.kind == EntityKind::Procedure && meaning.declaredIn &&
           meaning.declaredIn->scope->kind == ScopeKind::StandardModule && basic::equalNoCase(name, "Main");
}

std::vector<std::string> partsOfName(std::string_view name) {
    std::vector<std::string> parts;
    for (auto at = name.find('_'); at != name.npos; at = name.find('_', at + 1)) {
        if (at > 0) parts.emplace_back(name.substr(0, at));
        if (at + 1 < name.size()) parts.emplace_back(name.substr(at + 1));
    }
    return parts;
}

} // namespace qltoolkit
