// The input of a form designer, given as another window would give it.
#include "tests/workbench/canvas_desktop.h"
#include <QLabel>

using testing::ElementsAre;

namespace {

using Canvas = test::CanvasDesktop;

} // namespace

// ---- input as functions ---------------------------------------------------------------------------------------------

TEST_F(Canvas, FunctionsDragAsTheMouseDoes) {
    openBoxes();
    const auto from = middleOf("cmdA");
    canvas().press(from);
    EXPECT_TRUE(canvas().isDragging());
    canvas().moveTo(from + QPoint(16, 8));
    EXPECT_EQ(view().shownPlace(), QRectF(32, 24, 80, 40));
    canvas().release(from + QPoint(24, 8));
    EXPECT_FALSE(canvas().isDragging());
    EXPECT_EQ(placeOf("cmdA"), QRectF(40, 24, 80, 40));
}

TEST_F(Canvas, ADragAsksForNoCommandsUntilItsEnd) {
    openBoxes();
    const auto from = middleOf("cmdA");
    canvas().press(from);
    int asked = 0;
    auto& changed = window().editFocus().changed;
    changed = [&asked, former = changed] {
        ++asked;
        former();
    };
    for (int step = 1; step < 4; ++step) canvas().moveTo(from + QPoint(8 * step, 8));
    EXPECT_EQ(window().findChild<QLabel*>("statusPlace")->text(), "600, 360");
    EXPECT_EQ(asked, 0);
    canvas().release(from + QPoint(24, 8));
    settle();
    EXPECT_GT(asked, 0);
    EXPECT_TRUE(menuItem("&Edit", "&Undo")->isEnabled());
}

TEST_F(Canvas, UndoAndRedoNameTheirStep) {
    openBoxes();
    const auto names = [this] {
        settle();
        return menuItem("&Edit", "&Undo")->text() + ", " + menuItem("&Edit", "&Redo")->text();
    };
    EXPECT_EQ(names(), "&Undo, &Redo");
    drag(middleOf("cmdA"), {16, 8});
    EXPECT_EQ(names(), "&Undo Move, &Redo");
    drag(gripOf("cmdA").toPoint(), {16, 8});
    EXPECT_EQ(names(), "&Undo Size, &Redo");
    type("Caption", "Go");
    EXPECT_EQ(names(), "&Undo Change Caption, &Redo");
    canvas().setFocus();
    key(Qt::Key_Delete);
    EXPECT_EQ(names(), "&Undo Delete, &Redo");
    undo();
    undo();
    EXPECT_EQ(names(), "&Undo Size, &Redo Change Caption");
    component("frmMain")->CodeModule()->CodePane()->Show();
    settle();
    EXPECT_EQ(names(), "&Undo, &Redo") << "a text has no names";
}

TEST_F(Canvas, EachCommandNamesItsStep) {
    openBoxes();
    const auto step = [this](const std::function<void()>& act) {
        view().select({control("cmdB"), control("cmdA")});
        act();
        settle();
        return menuItem("&Edit", "&Undo")->text().toStdString();
    };
    const auto chosen = [this](const char* menu, const char* item) {
        return [=, this] { format(menu, item)->trigger(); };
    };
    EXPECT_EQ(step(chosen("&Align", "&Lefts")), "&Undo Align");
    EXPECT_EQ(step([this] { key(Qt::Key_Right, Qt::ShiftModifier); }), "&Undo Size");
    EXPECT_EQ(step(chosen("&Make Same Size", "&Both")), "&Undo Size");
    EXPECT_EQ(step(chosen("&Vertical Spacing", "&Increase")), "&Undo Space");
    EXPECT_EQ(step(chosen("&Center in Form", "&Horizontally")), "&Undo Center");
    EXPECT_EQ(step(chosen("&Order", "&Send to Back")), "&Undo Send to Back");
    EXPECT_EQ(step(chosen("&Order", "&Bring to Front")), "&Undo Bring to Front");
    EXPECT_EQ(step([this] { key(Qt::Key_Down, Qt::ControlModifier); }), "&Undo Move");
    EXPECT_EQ(step([this] { menuItem("F&ormat", "&Lock Controls")->trigger(); }), "&Undo Lock Controls");
    EXPECT_EQ(step([this] { menuItem("F&ormat", "&Lock Controls")->trigger(); }), "&Undo Unlock Controls");
    EXPECT_EQ(step([this] { menuItem("&Edit", "Cu&t")->trigger(); }), "&Undo Cut");
}

TEST_F(Canvas, AGripIsPulledFromThePlaceOfItsPress) {
    openBoxes();
    clickOn("cmdA");
    const auto offCentre = gripOf("cmdA") + QPointF(3, 3);
    canvas().press(offCentre);
    canvas().release(offCentre);
    EXPECT_EQ(saved("frmMain"), original);
    canvas().press(offCentre);
    canvas().moveTo(offCentre + QPointF(16, 8));
    canvas().release(offCentre + QPointF(16, 8));
    EXPECT_EQ(placeOf("cmdA"), QRectF(16, 16, 96, 48));
}

TEST_F(Canvas, GripsHaveNumbersWhileTheyCanBePulled) {
    openBoxes();
    clickOn("cmdA");
    const auto place = canvas().onCanvas(placeOf("cmdA"));
    EXPECT_EQ(canvas().gripNumberAt(place.topLeft()), 0);
    EXPECT_EQ(canvas().gripNumberAt(place.bottomRight()), 7);
    EXPECT_EQ(canvas().gripNumberAt(place.center()), std::nullopt);
    EXPECT_EQ(canvas().cursorAt(place.bottomRight()), Qt::SizeFDiagCursor);
    EXPECT_EQ(canvas().controlAt(place.center()), control("cmdA"));
    EXPECT_EQ(canvas().controlAt({0, 0}), nullptr);
    pick("Label");
    EXPECT_EQ(canvas().cursorAt(place.center()), Qt::CrossCursor);
}

TEST_F(Canvas, ACancelledDragChangesNothing) {
    openBoxes();
    const auto begin = [this] {
        canvas().press(middleOf("cmdA"));
        canvas().moveTo(middleOf("cmdA") + QPointF(40, 40));
        ASSERT_TRUE(canvas().isDragging());
    };
    const auto expectNone = [this] {
        EXPECT_FALSE(canvas().isDragging());
        canvas().release(middleOf("cmdA") + QPointF(40, 40));
        EXPECT_EQ(view().shownPlace(), QRectF(16, 16, 80, 40));
    };
    begin();
    canvas().cancelDrag();
    expectNone();
    begin();
    EXPECT_TRUE(canvas().key(Qt::Key_Escape));
    expectNone();
    EXPECT_EQ(selected(), "cmdA");
    begin();
    canvas().contextMenu(middleOf("cmdA"), {});
    if (auto* const menu = QApplication::activePopupWidget()) menu->close();
    expectNone();
    begin();
    canvas().setFocus();
    window().explorer().setFocus();
    expectNone();
    begin();
    QEvent deactivated(QEvent::WindowDeactivate);
    QApplication::sendEvent(&canvas(), &deactivated);
    expectNone();
    begin();
    view().select(control("cmdB"));
    view().select(control("cmdA"));
    expectNone();
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(Canvas, KeysThatItDoesNotUseAreReported) {
    openBoxes();
    EXPECT_TRUE(canvas().key(Qt::Key_Tab));
    EXPECT_EQ(selected(), "fraD");
    EXPECT_TRUE(canvas().key(Qt::Key_Right, Qt::ControlModifier));
    EXPECT_EQ(valueOf("fraD", "Left"), "2520");
    EXPECT_FALSE(canvas().key(Qt::Key_F5));
    EXPECT_FALSE(canvas().key(Qt::Key_S, Qt::ControlModifier));
}

TEST_F(Canvas, ReportsEachChangeOfWhatItShows) {
    openBoxes();
    int changes = 0;
    const auto watch = canvas().contentChanged.connect([&] { ++changes; });
    const auto expectChange = [&](const char* what, const std::function<void()>& act) {
        const int before = changes;
        act();
        EXPECT_GT(changes, before) << what;
    };
    expectChange("selection", [&] { canvas().press(middleOf("cmdA")); });
    expectChange("outline", [&] { canvas().moveTo(middleOf("cmdA") + QPointF(16, 16)); });
    expectChange("end", [&] { canvas().cancelDrag(); });
    expectChange("frame", [&] {
        canvas().press(pointOn({200, 100}));
        canvas().moveTo(pointOn({220, 120}));
    });
    canvas().cancelDrag();
    expectChange("content", [&] {
        control("cmdA")->Properties()->Item("Caption")->Value(std::string("A"));
        settle();
    });
    const int before = changes;
    canvas().moveTo(middleOf("cmdA"));
    settle();
    EXPECT_EQ(changes, before);
}

// ---- several controls -----------------------------------------------------------------------------------------------

TEST_F(Canvas, ShiftAndCtrlClicksAddAndRemove) {
    openBoxes();
    clickOn("cmdA");
    clickWith("cmdB", Qt::ShiftModifier);
    clickWith("cmdC", Qt::ControlModifier);
    EXPECT_THAT(selection(), ElementsAre("cmdA", "cmdB", "cmdC"));
    EXPECT_EQ(shown("(Name)"), "no such row"); // several controls have no common name
    clickWith("cmdB", Qt::ShiftModifier);
    EXPECT_THAT(selection(), ElementsAre("cmdA", "cmdC"));
    clickWith("fraD", Qt::ControlModifier);
    EXPECT_THAT(selection(), ElementsAre("cmdA", "cmdC", "fraD"));
    clickOn("cmdA"); // leads
    EXPECT_THAT(selection(), ElementsAre("cmdC", "fraD", "cmdA"));
    clickOn("cmdB");
    EXPECT_THAT(selection(), ElementsAre("cmdB"));
}

TEST_F(Canvas, AllSelectedControlsAreInOneContainer) {
    openBoxes();
    clickOn("cmdA");
    clickWith("cmdIn", Qt::ShiftModifier);
    EXPECT_THAT(selection(), ElementsAre("cmdIn"));
}

TEST_F(Canvas, AFrameSelectsWhatItTouches) {
    openBoxes();
    drag(pointOn({4, 4}), {24, 90});
    EXPECT_THAT(selection(), ElementsAre("cmdC", "cmdA"));
    QTest::mousePress(&canvas(), Qt::LeftButton, Qt::ShiftModifier, pointOn({210, 10}));
    QTest::mouseMove(&canvas(), pointOn({190, 20}));
    QTest::mouseRelease(&canvas(), Qt::LeftButton, Qt::ShiftModifier, pointOn({190, 20}));
    EXPECT_THAT(selection(), ElementsAre("cmdC", "cmdA", "cmdB"));
    drag(pointOn({300, 10}), {20, 20}); // nothing there
    EXPECT_THAT(selection(), ElementsAre());
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(Canvas, WithCtrlAFrameSelectsInAContainer) {
    openBoxes();
    const auto from = pointOn(placeOf("fraD").topLeft() + QPointF(60, 30));
    QTest::mousePress(&canvas(), Qt::LeftButton, Qt::ControlModifier, from);
    QTest::mouseMove(&canvas(), from - QPoint(50, 15));
    QTest::mouseRelease(&canvas(), Qt::LeftButton, Qt::ControlModifier, from - QPoint(50, 15));
    EXPECT_THAT(selection(), ElementsAre("cmdIn"));
}

TEST_F(Canvas, ADragMovesAllByTheSameStepAndIsUndoneAtOnce) {
    openBoxes(box("CommandButton", "cmdOff", 3001, 1203));
    clickOn("cmdOff");
    clickWith("cmdA", Qt::ShiftModifier);
    drag(middleOf("cmdA"), {17, 7});
    EXPECT_EQ(valueOf("cmdA", "Left"), "480");
    EXPECT_EQ(valueOf("cmdA", "Top"), "360");
    EXPECT_EQ(valueOf("cmdOff", "Left"), "3241");
    EXPECT_EQ(valueOf("cmdOff", "Top"), "1323");
    undo();
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(Canvas, OnlyTheLeaderHasGrips) {
    openBoxes();
    clickOn("cmdA");
    clickWith("cmdB", Qt::ShiftModifier);
    EXPECT_EQ(canvas().gripNumberAt(gripOf("cmdA")), std::nullopt);
    drag(gripOf("cmdB").toPoint(), {16, 16});
    EXPECT_EQ(placeOf("cmdB").size(), QSizeF(96, 56));
    EXPECT_EQ(placeOf("cmdA").size(), QSizeF(80, 40));
}

TEST_F(Canvas, KeysMoveSizeAndRemoveAll) {
    openBoxes();
    clickOn("cmdA");
    clickWith("cmdB", Qt::ShiftModifier);
    key(Qt::Key_Down, Qt::ControlModifier);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(placeOf("cmdA"), QRectF(16, 24, 88, 40));
    EXPECT_EQ(placeOf("cmdB"), QRectF(120, 24, 88, 40));
    key(Qt::Key_Delete);
    EXPECT_EQ(view().picture().controls.size(), 3u);
    for (int i = 0; i < 3; ++i) undo();
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(Canvas, LockedControlsAreNeitherMovedNorSized) {
    openBoxes("   LockControls    =   -1  'True\n");
    clickOn("cmdA");
    EXPECT_EQ(canvas().gripNumberAt(gripOf("cmdA")), std::nullopt);
    drag(middleOf("cmdA"), {40, 40});
    drag(gripOf("cmdA").toPoint(), {16, 16});
    key(Qt::Key_Down, Qt::ControlModifier);
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(saved("frmMain"), original);
    pick("Label");
    drag(pointOn({200, 100}), {40, 40});
    EXPECT_EQ(selected(), "Label1");
}
