#pragma once
// What a user does in the windows that come up.
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>
#include <type_traits>

namespace test {

/// Does this when the next modal window stands. Looks from Qt's loop, as only there a window comes up.
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
