#pragma once
// Answers modal windows in a user's place.
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <type_traits>

namespace test {

/// Calls `act` with the next modal window once it is shown.
template <class Window = QDialog>
void whenShown(std::type_identity_t<std::function<void(Window&)>> act) {
    QTimer::singleShot(10, qApp, [act] {
        auto* window = dynamic_cast<Window*>(QApplication::activeModalWidget());
        if (window && window->isVisible())
            act(*window);
        else
            whenShown<Window>(act);
    });
}

/// A box may show the name of a file or project, in which "<" begins no markup.
inline void expectPlainText(const QMessageBox& box) {
    EXPECT_EQ(box.textFormat(), Qt::PlainText) << box.text().toStdString();
}

inline void click(QWidget& window, const char* name) {
    QTest::mouseClick(window.findChild<QAbstractButton*>(name), Qt::LeftButton);
}

} // namespace test
