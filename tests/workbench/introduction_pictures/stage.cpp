#include "tests/workbench/introduction_pictures/stage.h"
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QToolBar>
#include <stdexcept>

namespace introduction {

namespace {

constexpr int kWindowWidth = 840, kWindowHeight = 560;
constexpr int kPatience = 200, kTurn = 20; // milliseconds
constexpr char kDevice[] = "PalmOS-DragonBall";

/// Answers each question with its default button, such as that about saving before a compile.
void answerQuestion() {
    auto* const window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!window || !window->isVisible()) return;
    for (auto* button : window->findChildren<QPushButton*>())
        if (button->isDefault()) return button->click();
}

[[noreturn]] void missing(const QString& what) { throw std::runtime_error("there is no " + what.toStdString()); }

} // namespace

Stage::Stage() {
    std::filesystem::copy(FERNWICK_SOURCE_DIR "/samples/HelloWorld", folder_ / "HelloWorld",
                          std::filesystem::copy_options::recursive);
    QObject::connect(&answers_, &QTimer::timeout, answerQuestion);
    answers_.start(kTurn);
    bench_.addIn().prefs.SetStartTutorial(false);
    window().resize(kWindowWidth, kWindowHeight);
    window().show();
    bench_.open(folder_ / "HelloWorld/HelloWorld.vbp");
    bench_.connect();
    QTest::qWait(kPatience);
}

Stage::~Stage() {
    project()->IsDirty(false);
    for (const auto& component : project()->VBComponents()->items()) component->IsDirty(false);
}

basic::Ref<vbide::VBProject> Stage::project() { return bench_.host().ActiveVBProject(); }

basic::Ref<vbide::VBComponent> Stage::form() { return project()->VBComponents()->Item("frmHello"); }

void Stage::showCode() {
    form()->CodeModule()->CodePane()->Show();
    QTest::qWait(kPatience);
}

void Stage::showForm() {
    form()->Activate();
    form()->DesignerWindow()->Visible(true);
    QTest::qWait(kPatience);
}

void Stage::compile() {
    auto& addIn = bench_.addIn();
    if (addIn.compile.CompileProject(project())) addIn.validate.ValidateProject(project(), kDevice);
    addIn.messages.ShowProjectCompileErrors(project(), false);
    QTest::qWait(kPatience);
}

QMenu& Stage::menu(const QString& title) {
    for (auto* top : window().menuBar()->actions())
        if (top->text() == title) return *top->menu();
    missing("menu " + title);
}

QPoint Stage::below(QMenu& menu) {
    auto& bar = *window().menuBar();
    return bar.mapTo(&window(), bar.actionGeometry(menu.menuAction()).bottomLeft());
}

QToolBar& Stage::toolBar(const QString& title) {
    for (auto* bar : window().findChildren<QToolBar*>())
        if (bar->windowTitle() == title) return *bar;
    missing("toolbar " + title);
}

} // namespace introduction
