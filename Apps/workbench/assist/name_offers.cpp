#include "Apps/workbench/assist/name_offers.h"
#include "Apps/workbench/assist/name_icons.h"
#include "Apps/workbench/assist/typed_place.h"
#include "Apps/workbench/base/theme.h"
#include "Apps/workbench/editing/code_input.h"
#include "Apps/workbench/options/declared_options.h"
#include "Basic/case_folding.h"
#include <QGuiApplication>
#include <QListWidget>

namespace workbench {

namespace {

using Sci = QsciScintillaBase;

bool isNamePart(QChar character) { return character.isLetterOrNumber() || character == '_'; }

constexpr char kBetweenNames = '\n', kBeforeIcon = '\t';

/// In names.
constexpr int kLongList = 300;

/// After these a chosen name is accepted, and they are inserted.
constexpr const char* kAccepting = " .(),=+-*/&<>!:";

/// Icons must remain readable on the chosen row, and the list never has the focus that the usual colour depends on.
void colourList(const QsciScintilla& text) {
    auto palette = QGuiApplication::palette();
    palette.setColor(QPalette::Highlight, codeColours(currentTheme()).chosenName);
    palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
    // the last list may not be deleted yet
    for (auto* list : text.findChildren<QListWidget*>()) list->setPalette(palette);
}

} // namespace

NameOffers::NameOffers(CodeInput& text, ProjectInsight::Component component, ProjectInsight& insight)
    : text_(text), component_(std::move(component)), insight_(insight) {
    text.SendScintilla(Sci::SCI_AUTOCSETSEPARATOR, (unsigned long)kBetweenNames);
    text.SendScintilla(Sci::SCI_AUTOCSETTYPESEPARATOR, (unsigned long)kBeforeIcon);
    text.SendScintilla(Sci::SCI_AUTOCSETIGNORECASE, 1ul);
    text.SendScintilla(Sci::SCI_AUTOCSETORDER, (unsigned long)Sci::SC_ORDER_CUSTOM);
    text.SendScintilla(Sci::SCI_AUTOCSETCANCELATSTART, 0ul);
    connect(&text, &QsciScintilla::SCN_AUTOCCHARDELETED, this, [this] { removed(); });
}

bool NameOffers::isShown() const { return text_.isListActive(); }

void NameOffers::close() { text_.SendScintilla(Sci::SCI_AUTOCCANCEL); }

bool NameOffers::ask(qltoolkit::Wanted wanted) {
    const auto known = insight_.of(component_);
    if (!known) return false;
    const TypedPlace place(text_);
    offer_ = qltoolkit::namesAt(*known.snapshot, place.in(known.module), place.rest(), wanted);
    return offer_.kind != qltoolkit::OfferKind::Nothing;
}

void NameOffers::request(bool completesSingle) {
    if (ask(qltoolkit::Wanted::All)) show(completesSingle);
}

void NameOffers::typed(QChar character) {
    if (isNamePart(character)) {
        if (isShown()) show();
        return;
    }
    if (!kAutoListMembers.stored() || !QString(".!( ,=").contains(character) || !ask(qltoolkit::Wanted::Special))
        return;
    const bool isMember = character == '.' || character == '!';
    if (isMember || offer_.kind > qltoolkit::OfferKind::Members) show();
}

void NameOffers::removed() {
    if (isShown()) show();
}

QByteArray NameOffers::partial() const {
    const TypedPlace place(text_);
    const auto before = QString::fromUtf8(place.procedure().data(), qsizetype(place.cursor()));
    auto begin = before.size();
    while (begin > 0 && isNamePart(before[begin - 1])) --begin;
    return before.mid(begin).toUtf8();
}

void NameOffers::show(bool completesSingle) {
    const auto begun = partial();
    text_.SendScintilla(Sci::SCI_AUTOCSETFILLUPS, begun.isEmpty() ? "" : kAccepting);
    if (staysShown(begun)) return;
    shown_ = {begun.toStdString(), 0};
    QByteArray list;
    for (const auto& [name, kind] : offer_.names) {
        if (!basic::startsWithNoCase(name, shown_.begun)) continue;
        ++shown_.count;
        if (!list.isEmpty()) list += kBetweenNames;
        list.append(name.data(), qsizetype(name.size())).append(kBeforeIcon).append(QByteArray::number(int(kind)));
    }
    if (list.isEmpty()) return close();
    if (!isShown()) registerNameIcons(text_); // in the present theme
    text_.SendScintilla(Sci::SCI_AUTOCSETCHOOSESINGLE, (unsigned long)completesSingle);
    text_.SendScintilla(Sci::SCI_AUTOCSHOW, (unsigned long)begun.size(), list.constData());
    colourList(text_);
}

/// The width of each row is measured when a list is shown, so a long list only scrolls, which Scintilla does itself.
bool NameOffers::staysShown(const QByteArray& begun) const {
    return isShown() && shown_.count > kLongList && basic::startsWithNoCase(begun.toStdString(), shown_.begun);
}

void NameOffers::acceptChosen() {
    const bool isChosen = text_.SendScintilla(Sci::SCI_AUTOCGETCURRENT) > 0 || !partial().isEmpty();
    if (isChosen)
        text_.complete();
    else
        close();
}

} // namespace workbench
