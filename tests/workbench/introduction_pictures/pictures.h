#pragma once
// The pictures of the introduction's pages.
#include <QImage>

namespace introduction {

class Stage;

// Pictures of the desktop
QImage welcome(Stage& stage);
/// Shows a handheld with the size of the form.
QImage forms(Stage& stage);
QImage menu(Stage& stage);
QImage toolbars(Stage& stage);
QImage finished(Stage& stage);
/// The dialog of File > New Project.
QImage projectTemplate();

// Pictures of other programs
QImage tavlets();
QImage startMenu();
QImage website();

} // namespace introduction
