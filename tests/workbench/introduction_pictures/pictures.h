#pragma once
// The pictures of the introduction's pages.
#include <QImage>

namespace introduction {

class Stage;

// Of the desktop itself
QImage welcome(Stage& stage);
/// With a handheld that has the form's size.
QImage forms(Stage& stage);
QImage menu(Stage& stage);
QImage toolbars(Stage& stage);
QImage finished(Stage& stage);
/// The choice that File > New Project gives.
QImage projectTemplate();

// Of what the desktop doesn't draw
QImage tavlets();
QImage startMenu();
QImage website();

} // namespace introduction
