// What the find bar finds and replaces.
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/code_texts.h"
#include "Apps/workbench/code/find_bar.h"
#include "Apps/workbench/code/find_options.h"
#include <QLineEdit>
#include <algorithm>

namespace workbench {

CodePattern FindBar::pattern() const { return {what_->text(), options_->options()}; }

bool FindBar::canLookFor(const CodePattern& pattern) {
    if (pattern.error().isEmpty()) return true;
    say(pattern.error(), true);
    return false;
}

void FindBar::findAgain(bool backwards) {
    auto* const editor = code_.current();
    const auto wanted = pattern();
    if (!editor || (what_->text().isEmpty() && isHidden())) return open(false);
    if (!canLookFor(wanted)) return;
    const auto found = findNext(wanted, options_->scope(), editor->place(), backwards);
    if (!found) return say(QString(code_texts::kNotFound).arg(what_->text(), options_->scopeName()), true);
    say(!found->wentRound ? QString() : backwards ? code_texts::kWentRoundUp : code_texts::kWentRound);
    bringUp(found->place);
}

void FindBar::findAll() {
    const auto wanted = pattern();
    if (!canLookFor(wanted)) return;
    const auto* const editor = code_.current();
    const auto from = editor ? editor->place() : start();
    if (!from.component) return say(QString(code_texts::kNotFound).arg(what_->text(), options_->scopeName()), true);
    say({});
    list(wanted, what_->text(), stretchesOf(options_->scope(), from));
}

/// Opens the window of the module if there is none, and leaves the focus where it is.
void FindBar::bringUp(const CodePlace& place) {
    auto* const focus = focusWidget();
    const bool here = focus && focus->hasFocus();
    code_.showPlace(place);
    if (here) focus->setFocus();
}

// ---- replacing ------------------------------------------------------------------------------------------------------

void FindBar::replace() {
    auto* const editor = code_.current();
    const auto wanted = pattern();
    if (!editor || !canLookFor(wanted)) return;
    const auto place = editor->place();
    const auto hits = wanted.hitsIn(editor->lineText(place.line));
    const bool isHit = std::find(hits.begin(), hits.end(), LineHit{place.column, place.length}) != hits.end();
    if (isHit) editor->replace({place}, with_->text());
    findAgain(false);
}

void FindBar::replaceAll() {
    auto* const editor = code_.current();
    const auto wanted = pattern();
    if (!editor || !canLookFor(wanted)) return;
    const auto from = editor->place();
    std::size_t count = 0, modules = 0;
    for (const auto& hits : workbench::findAll(wanted, options_->scope(), from)) {
        // in the editor, so that the user sees it and can undo it
        bringUp(hits.places.front());
        if (!code_.editorOf(hits.component)->replace(hits.places, with_->text()))
            return say(QString(code_texts::kRefused).arg(qt(hits.component->Name())), true);
        count += hits.places.size();
        ++modules;
    }
    if (count == 0) return say(QString(code_texts::kNotFound).arg(what_->text(), options_->scopeName()), true);
    bringUp({from.component, from.line, from.column, 0});
    say(modules > 1 ? QString(code_texts::kReplacedInModules).arg(count).arg(modules)
                    : QString(code_texts::kReplaced).arg(count));
}

} // namespace workbench
