#include "Apps/workbench/bars/shared_letters.h"
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QShortcutEvent>
#include <algorithm>

namespace workbench {

namespace {

/// The key of the action's mnemonic; 0 for none.
int letterOf(const QAction& action) {
    const auto keys = QKeySequence::mnemonic(action.text());
    return keys.isEmpty() ? 0 : int(keys[0].key());
}

bool canBeChosen(const QAction& action) { return action.isVisible() && action.isEnabled(); }

bool isPlainLetter(const QKeyEvent& event) {
    return (event.modifiers() & ~Qt::AltModifier) == 0 && event.text().size() == 1;
}

} // namespace

SharedLetters::SharedLetters(QMenuBar& bar) : bar_(bar) { bar.installEventFilter(this); }

void SharedLetters::follow(QMenu& menu) { menu.installEventFilter(this); }

bool SharedLetters::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &bar_ && event->type() == QEvent::Shortcut) {
        const auto& shortcut = static_cast<QShortcutEvent&>(*event);
        return shortcut.isAmbiguous() && openFirst(shortcut.key()[0].key());
    }
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<QKeyEvent&>(*event);
    const auto* const menu = dynamic_cast<QMenu*>(watched);
    return menu && isPlainLetter(key) && moveOn(*menu, key.key());
}

QList<QAction*> SharedLetters::menusWith(int letter) const {
    QList<QAction*> found;
    for (auto* action : bar_.actions())
        if (action->menu() && canBeChosen(*action) && letterOf(*action) == letter) found << action;
    return found;
}

bool SharedLetters::openFirst(int letter) {
    const auto menus = menusWith(letter);
    if (!menus.isEmpty()) bar_.setActiveAction(menus.front());
    return !menus.isEmpty();
}

/// A command of the open menu goes first.
bool SharedLetters::moveOn(const QMenu& from, int letter) {
    const auto commands = from.actions();
    const auto isChosen = [letter](const QAction* one) { return canBeChosen(*one) && letterOf(*one) == letter; };
    if (std::any_of(commands.begin(), commands.end(), isChosen)) return false;
    const auto menus = menusWith(letter);
    const auto at = menus.indexOf(from.menuAction());
    if (at < 0 || menus.size() < 2) return false;
    bar_.setActiveAction(menus[(at + 1) % menus.size()]);
    return true;
}

} // namespace workbench
