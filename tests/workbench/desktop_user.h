#pragma once
// Answers modal windows in a user's place.
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>
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

inline void click(QWidget& window, const char* name) {
    QTest::mouseClick(window.findChild<QAbstractButton*>(name), Qt::LeftButton);
}

} // namespace test
