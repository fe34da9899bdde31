// The zoom window of the desktop.
#include "Apps/workbench/zoom/designer_image.h"
#include "tests/workbench/zoom_desktop.h"
#include <QMenu>
#include <QMessageBox>
#include <QWheelEvent>
#include <set>

using test::ZoomDesktop;

namespace {

class Zoom : public ZoomDesktop {
protected:
    /// The smallest rectangle around all pixels of a colour.
    static QRect placeOfColour(const QImage& picture, const QColor& colour) {
        QRect place;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixelColor(x, y) == colour) place |= QRect(x, y, 1, 1);
        return place;
    }
    QImage picture() { return zoom().grab().toImage(); }
    void set(const std::string& name, const std::string& property, const fernwick::Variant& value) {
        control(name)->Properties()->Item(property)->Value(value);
        settle();
    }
    void setForm(const std::string& property, const fernwick::Variant& value) {
        view().component()->Properties()->Item(property)->Value(value);
        settle();
    }
    std::vector<std::string> zoomWindows() {
        std::vector<std::string> titles;
        for (const auto& open : bench->host().Windows()->items())
            if (open->Caption() == "Fernwick Zoom") titles.push_back(open->Visible() ? "visible" : "hidden");
        return titles;
    }
};

const QColor kRed(255, 0, 0);

} // namespace

// ---- the picture ----------------------------------------------------------------------------------------------------

TEST_F(Zoom, ShowsEachPixelAsASquare) {
    openZoomed(kControls);
    view().select(control("cmdTwo")); // whose grips are elsewhere
    settle();
    const auto designed = placeOfColour(canvas().grab().toImage(), kRed);
    ASSERT_FALSE(designed.isEmpty());
    for (int level = 1; level <= 5; ++level) {
        chooseLevel(level);
        const auto shown = placeOfColour(picture(), kRed);
        EXPECT_EQ(shown.topLeft(), zoomed(designed.topLeft())) << level;
        EXPECT_EQ(shown.size(), designed.size() * level) << level;
    }
}

TEST_F(Zoom, BeginsAtTwoUnderItsBand) {
    openZoomed(kControls);
    EXPECT_EQ(level(), 2);
    EXPECT_EQ(zoomed({0, 0}), QPoint(0, 30));
    EXPECT_EQ(zoom().findChild<QComboBox*>("Combo1")->currentText(), "2");
    for (const auto* bar : zoom().findChildren<QScrollBar*>()) EXPECT_TRUE(bar->isHidden());
}

TEST_F(Zoom, FollowsWhileAControlIsDragged) {
    openZoomed(kControls);
    chooseLevel(3);
    const auto from = middleOf("cmdTwo");
    QTest::mousePress(&zoom(), Qt::LeftButton, {}, zoomed(from));
    for (const auto& by : {QPoint(16, 0), QPoint(24, 16), QPoint(-40, 24)}) {
        moveMouse(zoom(), zoomed(from + by));
        settle();
        EXPECT_EQ(view().shownPlace().topLeft(), placeOf("cmdTwo").topLeft() + by);
        const auto outline = canvas().onCanvas(view().shownPlace()).toRect();
        const auto designed = canvas().grab().toImage(), shown = picture();
        for (const auto& at : {outline.topLeft() + QPoint(8, 0), outline.topLeft() + QPoint(0, 8)})
            EXPECT_EQ(shown.pixelColor(zoomed(at)), designed.pixelColor(at)) << at.x() << "," << at.y();
    }
    QTest::mouseRelease(&zoom(), Qt::LeftButton, {}, zoomed(from + QPoint(-40, 24)));
    settle();
    EXPECT_EQ(valueOf("cmdTwo", "Left"), "1200");
}

TEST_F(Zoom, IsQuietWhileNothingChanges) {
    openZoomed(kControls);
    view().select(control("txtOne"));
    settle(100);
    const int paints = zoom().paints(), transfers = zoom().transfers();
    settle(1700);
    EXPECT_EQ(zoom().paints(), paints);
    EXPECT_GE(zoom().transfers() - transfers, 2);
    EXPECT_LE(zoom().transfers() - transfers, 5);
    set("txtOne", "BackColor", std::int32_t(0xFF00));
    EXPECT_EQ(zoom().paints(), paints + 1);
}

TEST_F(Zoom, IsQuietWhileThePointerRestsOnAHandle) {
    openZoomed(kControls);
    view().select(control("txtOne"));
    settle(100);
    moveMouse(zoom(), zoomed(canvas().gripPlace(7).toPoint()));
    settle(100);
    const int paints = zoom().paints(), moves = bench->windows().mouse().postedMoves();
    settle(1200);
    EXPECT_EQ(zoom().paints(), paints);
    EXPECT_EQ(bench->windows().mouse().postedMoves(), moves);
}

TEST_F(Zoom, RemovesTheEdgeOfAFormThatShrinks) {
    openZoomed(kControls);
    const int clears = zoom().clears();
    setForm("Width", 1800.0F);
    EXPECT_GT(zoom().clears(), clears);
    const auto edge = zoomed({200, 100});
    EXPECT_EQ(picture().pixel(edge), zoom().palette().color(QPalette::Dark).rgb());
    const int after = zoom().clears();
    setForm("Width", 3600.0F);
    EXPECT_EQ(zoom().clears(), after);
}

TEST_F(Zoom, ShowsAFormAgainThatWasSelected) {
    openZoomed(kControls, "Form1");
    const auto added = project()->VBComponents()->Add(vbide::vbext_ct_VBForm);
    settle();
    added->Name("Form10");
    design("Form10");
    EXPECT_EQ(&zoom().canvas()->view(), desk().forms().viewOf(added));
    design("Form1");
    EXPECT_EQ(&zoom().canvas()->view(), desk().forms().viewOf(component("Form1")));
}

TEST_F(Zoom, AFormNamedLikeTheWindowIsFound) {
    openZoomed(kControls, "Zoom");
    EXPECT_EQ(&zoom().canvas()->view(), &view());
    clickZoomed(middleOf("cmdTwo"));
    EXPECT_EQ(selected(), "cmdTwo");
}

// ---- scrolled -------------------------------------------------------------------------------------------------------

TEST_F(Zoom, ClicksLandWhereTheUserSeesThem) {
    openZoomed(kControls);
    dock().resize(320, 300);
    chooseLevel(5);
    settle();
    auto& vertical = *zoom().findChildren<QScrollBar*>().back();
    ASSERT_FALSE(vertical.isHidden());
    vertical.setValue(vertical.maximum() / 2);
    settle();
    EXPECT_LT(zoomed({0, 0}).y(), 0);
    for (auto* bar : zoom().findChildren<QScrollBar*>()) bar->setValue(0);
    settle();
    clickZoomed(middleOf("txtOne"));
    EXPECT_EQ(selected(), "txtOne");
    dock().resize(kWide, kWide); // the bars disappear
    settle();
    clickZoomed(middleOf("cmdTwo"));
    EXPECT_EQ(selected(), "cmdTwo");
}

TEST_F(Zoom, ALargeFormInASmallWindowShowsNoBox) {
    openZoomed(kControls);
    dock().resize(300, 300);
    setForm("Width", 640.0F * 15);
    setForm("Height", 480.0F * 15);
    chooseLevel(5);
    settle(1200);
    EXPECT_FALSE(QApplication::activeModalWidget());
    clickZoomed(middleOf("txtOne"));
    EXPECT_EQ(selected(), "txtOne");
}

TEST_F(Zoom, TheWheelWithCtrlChangesTheLevel) {
    openZoomed(kControls);
    const auto turn = [this](const QPoint& angle) {
        QWheelEvent event({60, 60}, zoom().mapToGlobal(QPointF(60, 60)), {}, angle, Qt::NoButton, Qt::ControlModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&zoom(), &event);
        settle();
        return level();
    };
    EXPECT_EQ(turn({0, 120}), 3);
    EXPECT_EQ(turn({120, 0}), 3);
    EXPECT_EQ(turn({-120, 0}), 3);
    EXPECT_EQ(turn({0, -120}), 2);
    EXPECT_EQ(turn({0, -120}), 1);
    EXPECT_EQ(turn({0, -120}), 1);
    for (int i = 2; i <= 5; ++i) EXPECT_EQ(turn({0, 120}), i);
    EXPECT_EQ(turn({0, 120}), 5);
}

TEST_F(Zoom, TheWheelScrolls) {
    openZoomed(kControls);
    chooseLevel(5);
    dock().resize(300, 300);
    settle();
    const auto turn = [this](const QPoint& angle, Qt::KeyboardModifiers keys = {}) {
        QWheelEvent event({60, 60}, zoom().mapToGlobal(QPointF(60, 60)), {}, angle, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        const auto place = [this] { return QPoint(zoom().document()->GetXOffset(), zoom().document()->GetYOffset()); };
        const auto before = place();
        QApplication::sendEvent(&zoom(), &event);
        settle();
        return place() - before;
    };
    const auto down = turn({0, -120}), right = turn({0, -120}, Qt::ShiftModifier);
    EXPECT_EQ(down.x(), 0);
    EXPECT_NE(down.y(), 0);
    EXPECT_EQ(right, QPoint(down.y(), 0));
    EXPECT_EQ(turn({0, 120}), -down);
    EXPECT_EQ(turn({0, 120}, Qt::ShiftModifier), -right);
}

// ---- the mouse ------------------------------------------------------------------------------------------------------

TEST_F(Zoom, ThePointerHasTheShapeOfTheDesigner) {
    openZoomed(kControls);
    chooseLevel(3);
    view().select(control("txtOne"));
    settle();
    const auto shapeAt = [this](const QPoint& at) {
        moveMouse(zoom(), zoomed(at));
        moveMouse(canvas(), at);
        return std::pair(zoom().cursor().shape(), canvas().cursor().shape());
    };
    std::set<Qt::CursorShape> shapes;
    for (int grip = 0; grip < 8; ++grip) {
        const auto [zoomShape, shape] = shapeAt(canvas().gripPlace(grip).toPoint());
        EXPECT_EQ(zoomShape, shape) << grip;
        shapes.insert(shape);
    }
    EXPECT_EQ(shapes.size(), 4u);
    EXPECT_EQ(shapeAt(middleOf("cmdTwo")), std::pair(Qt::ArrowCursor, Qt::ArrowCursor));
    pick("QLTextBox");
    EXPECT_EQ(shapeAt(middleOf("cmdTwo")), std::pair(Qt::CrossCursor, Qt::CrossCursor));
}

TEST_F(Zoom, AClickOnAHandleChangesNothing) {
    openZoomed(kControls);
    view().select(control("txtOne"));
    for (int level = 1; level <= 5; ++level) {
        chooseLevel(level);
        for (int grip = 0; grip < 8; ++grip) clickZoomed(canvas().gripPlace(grip).toPoint());
        EXPECT_EQ(saved("frmMain"), original) << level;
    }
    EXPECT_EQ(bench->windows().procedures().hookCount(), 0u);
}

/// The mouse may move before Qt's loop turns.
TEST_F(Zoom, AQuickPullOfAHandleLosesNothing) {
    openZoomed(kControls);
    view().select(control("cmdTwo"));
    const auto grip = canvas().gripPlace(7).toPoint();
    for (int level = 1; level <= 5; ++level) {
        chooseLevel(level);
        QTest::mousePress(&zoom(), Qt::LeftButton, {}, zoomed(grip));
        moveMouse(zoom(), zoomed(grip + QPoint(32, 16)), Qt::LeftButton);
        QTest::mouseRelease(&zoom(), Qt::LeftButton, {}, zoomed(grip + QPoint(32, 16)));
        settle();
        EXPECT_EQ(placeOf("cmdTwo"), QRectF(120, 80, 96, 48)) << level;
        desk().undo();
        settle();
    }
}

TEST_F(Zoom, AMenuThatTakesTheMouseEndsTheDrag) {
    openZoomed(std::string(kControls) +
               "   Begin VB.Menu mnuFile\n      Caption = \"&File\"\n      Begin VB.Menu mnuOpen\n"
               "         Caption = \"&Open\"\n      End\n   End\n");
    const auto bar = canvas().onCanvas(QRectF()).topLeft() + QPointF(12, -8);
    QTest::mousePress(&zoom(), Qt::LeftButton, {}, zoomed(bar.toPoint()));
    settle();
    auto* const menu = canvas().findChild<QMenu*>();
    ASSERT_TRUE(menu);
    menu->close();
    settle();
    EXPECT_EQ(bench->windows().mouse().captured(), 0);
    view().select(nullptr);
    dragZoomed(middleOf("cmdTwo"), {16, 8});
    EXPECT_EQ(placeOf("cmdTwo").topLeft(), QPointF(136, 88));
    dragZoomed(middleOf("cmdTwo"), {16, 8});
    EXPECT_EQ(placeOf("cmdTwo").topLeft(), QPointF(152, 96));
}

TEST_F(Zoom, EscapeEndsADragWithoutAChange) {
    openZoomed(kControls);
    const auto from = middleOf("cmdTwo");
    QTest::mousePress(&zoom(), Qt::LeftButton, {}, zoomed(from));
    moveMouse(zoom(), zoomed(from + QPoint(40, 40)));
    QTest::keyClick(&zoom(), Qt::Key_Escape);
    EXPECT_EQ(bench->windows().mouse().captured(), 0);
    moveMouse(zoom(), zoomed(from + QPoint(80, 40)));
    QTest::mouseRelease(&zoom(), Qt::LeftButton, {}, zoomed(from + QPoint(80, 40)));
    settle();
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(Zoom, AClosedDesignerEndsADrag) {
    openZoomed(kControls);
    const auto from = middleOf("cmdTwo");
    QTest::mousePress(&zoom(), Qt::LeftButton, {}, zoomed(from));
    moveMouse(zoom(), zoomed(from + QPoint(40, 40)));
    component("frmMain")->DesignerWindow()->Close();
    settle();
    EXPECT_EQ(bench->windows().mouse().captured(), 0);
    moveMouse(zoom(), {50, 50});
    QTest::mouseRelease(&zoom(), Qt::LeftButton, {}, {50, 50});
    design("frmMain");
    dragZoomed(middleOf("cmdTwo"), {16, 8});
    EXPECT_EQ(placeOf("cmdTwo").topLeft(), QPointF(136, 88));
}

TEST_F(Zoom, UndoDuringTheDragOfAHandleEndsIt) {
    openZoomed(kControls);
    clickZoomed(middleOf("cmdTwo"));
    set("cmdTwo", "Caption", std::string("New"));
    QTest::mousePress(&zoom(), Qt::LeftButton, {}, zoomed(canvas().gripPlace(7).toPoint()));
    settle();
    EXPECT_EQ(bench->windows().procedures().hookCount(), 1u);
    moveMouse(zoom(), zoomed(canvas().gripPlace(7).toPoint() + QPoint(40, 40)));
    desk().undo();
    settle();
    QTest::mouseRelease(&zoom(), Qt::LeftButton, {}, zoomed({50, 50}));
    settle();
    EXPECT_EQ(bench->windows().procedures().hookCount(), 0u);
    EXPECT_EQ(bench->windows().mouse().captured(), 0);
}

TEST_F(Zoom, APressSelectsTheFormInACodeWindowsPlace) {
    openZoomed(kControls);
    const auto middle = middleOf("cmdTwo");
    const auto module = project()->VBComponents()->Add(vbide::vbext_ct_StdModule);
    module->CodeModule()->CodePane()->Show();
    settle();
    dragZoomed(middle, {16, 8});
    EXPECT_EQ(placeOf("cmdTwo").topLeft(), QPointF(136, 88));
    EXPECT_TRUE(bench->host().SelectedVBComponent() == component("frmMain"));
}

TEST_F(Zoom, ADoubleClickOpensTheHandler) {
    openZoomed(kControls);
    QTest::mouseDClick(&zoom(), Qt::LeftButton, {}, zoomed(middleOf("cmdTwo")));
    settle();
    EXPECT_EQ(component("frmMain")->CodeModule()->Lines(1, 1), "Private Sub cmdTwo_Click()");
}

// ---- the keyboard ---------------------------------------------------------------------------------------------------

TEST_F(Zoom, KeysReachTheDesigner) {
    openZoomed(kControls);
    clickZoomed(middleOf("cmdTwo"));
    const auto press = [this](int key, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(&zoom(), Qt::Key(key), keys);
        settle();
    };
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(valueOf("cmdTwo", "Left"), "1920");
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(valueOf("cmdTwo", "Height"), "600");
    press(Qt::Key_Tab);
    EXPECT_NE(selected(), "cmdTwo");
    clickZoomed(middleOf("txtOne"));
    press(Qt::Key_Delete);
    EXPECT_EQ(view().picture().controls.size(), 3u);
    press(Qt::Key_Escape);
    EXPECT_EQ(selected(), "");
}

// ---- the window -----------------------------------------------------------------------------------------------------

TEST_F(Zoom, ComesBackAfterItWasClosed) {
    openZoomed(kControls);
    dock().close();
    settle(1100); // two ticks of its timer
    EXPECT_THAT(zoomWindows(), testing::ElementsAre("hidden"));
    menuItem("&Fernwick", "&Zoom Window")->trigger();
    settle();
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_THAT(zoomWindows(), testing::ElementsAre("visible"));
    EXPECT_TRUE(zoom().isVisible());
    clickZoomed(middleOf("cmdTwo"));
    EXPECT_EQ(selected(), "cmdTwo");
}

TEST_F(Zoom, FollowsAfterASave) {
    openZoomed(kControls);
    menuItem("&File", "Sa&ve Project")->trigger();
    settle();
    const int paints = zoom().paints();
    set("cmdTwo", "Left", 240.0F);
    EXPECT_GT(zoom().paints(), paints);
}

TEST_F(Zoom, EndsWithTheAddIn) {
    openZoomed(kControls);
    bench->host().Addins()->Item("QLVBAddIn.Connect")->Connect(false);
    settle();
    EXPECT_TRUE(placeOfColour(picture(), kRed).isEmpty());
    const int transfers = zoom().transfers();
    moveMouse(zoom(), {60, 60});
    QTest::mouseClick(&zoom(), Qt::LeftButton, {}, QPoint(60, 60));
    settle(600);
    EXPECT_EQ(zoom().transfers(), transfers);
    EXPECT_EQ(bench->windows().procedures().hookCount(), 0u);
}
