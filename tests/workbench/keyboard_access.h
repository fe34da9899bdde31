#pragma once
// What a dialog needs to be used without a mouse or a screen.
#include <QAbstractButton>
#include <QAccessible>
#include <QDialog>
#include <QKeySequence>
#include <QLabel>
#include <QSpinBox>
#include <QTabWidget>
#include <gtest/gtest.h>
#include <set>

namespace test {

/// Expects that what is visible has different letters, and a name for screen readers.
inline void expectKeyboardAccess(const QDialog& dialog) {
    std::multiset<QString> letters;
    const auto add = [&letters](const QString& text) {
        if (const auto letter = QKeySequence::mnemonic(text); !letter.isEmpty()) letters.insert(letter.toString());
    };
    for (const auto* tabs : dialog.findChildren<QTabWidget*>())
        for (int tab = 0; tabs->isVisible() && tab < tabs->count(); ++tab) add(tabs->tabText(tab));
    for (auto* button : dialog.findChildren<QAbstractButton*>())
        if (button->isVisible()) add(button->text());
    for (auto* label : dialog.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy()) add(label->text());
    for (const auto& letter : letters) EXPECT_EQ(letters.count(letter), 1u) << letter.toStdString();
    for (auto* widget : dialog.findChildren<QWidget*>()) {
        const bool takesKeys = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible();
        if (!takesKeys || dynamic_cast<QSpinBox*>(widget->parent())) continue;
        auto* const accessible = QAccessible::queryAccessibleInterface(widget);
        EXPECT_TRUE(accessible && !accessible->text(QAccessible::Name).isEmpty()) << widget->objectName().toStdString();
    }
}

} // namespace test
