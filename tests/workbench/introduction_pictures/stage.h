#pragma once
#include "Apps/workbench/window/workbench.h"
#include "tests/support/temp_folder.h"

class QMenu;
class QToolBar;

namespace introduction {

/// The desktop over a copy of the sample Hello World.
class Stage {
public:
    Stage();
    ~Stage();
    Stage(const Stage&) = delete;

    workbench::MainWindow& window() { return bench_.window(); }
    void showCode();
    void showForm();
    /// Compiles and validates, and shows the messages.
    void compile();
    /// Opens a menu of the menu bar and returns its place.
    QMenu& menu(const QString& title);
    QPoint below(QMenu& menu);
    QToolBar& toolBar(const QString& title);

private:
    basic::Ref<vbide::VBProject> project();
    basic::Ref<vbide::VBComponent> form();

    test::TempFolder folder_;
    QTimer answers_;
    workbench::Workbench bench_;
};

} // namespace introduction
