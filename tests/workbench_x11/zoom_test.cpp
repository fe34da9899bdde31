// The zoom window on a real display: what the mouse and the keys do there, and where things are drawn.
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/zoom/zoom_view.h"
#include "tests/support/sample_project.h"
#include "tests/workbench_x11/x_desktop.h"
#include <QComboBox>
#include <QDockWidget>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QThread>
#include <cmath>

using namespace test;

namespace {

constexpr auto kControls = "   Begin VB.TextBox txtOne \r\n      BackColor       =   &H000000FF&\r\n"
                           "      Height          =   360\r\n      Left            =   240\r\n"
                           "      Top             =   240\r\n      Width           =   1200\r\n   End\r\n"
                           "   Begin VB.CommandButton cmdTwo \r\n      Height          =   480\r\n"
                           "      Left            =   600\r\n      Top             =   1200\r\n"
                           "      Width           =   960\r\n   End\r\n";

struct ZoomOnScreen : XDesktop {
    ZoomOnScreen() {
        auto text = formText("frmMain");
        text.insert(text.find("End\r\nAttribute"), kControls);
        const auto path = SampleProject("Zoomed")
                              .member("Form=frmMain.frm", "frmMain.frm", text)
                              .handheld("PalmOS-DragonBall")
                              .writeTo(folder);
        connect();
        begin([=, this] { bench->open(path); });
        eventually("the project", [this] { return bool(bench->host().ActiveVBProject()); });
        begin([this] { window().design().open(component("frmMain")); });
        eventually("the designer", [this] { return window().design().forms().current() != nullptr; });
        choose("&Fernwick", "&Zoom Window");
        eventually("the zoomed designer", [this] { return zoom() && zoom()->isVisible() && zoom()->canvas(); });
    }

    workbench::ZoomView* zoom() { return window().findChild<workbench::ZoomView*>("zoomPicture"); }
    QDockWidget& dock() { return *window().findChild<QDockWidget*>("Fernwick Zoom"); }
    workbench::FormCanvas& canvas() { return window().design().forms().current()->canvas(); }
    workbench::FormView& view() { return *window().design().forms().current(); }
    int level() { return zoom()->document()->Combo1.ListIndex() + 1; }

    /// Makes it float, as large as it must be for the whole form at this level.
    void enlarge(int level) {
        ask([&] {
            zoom()->document()->Combo1.ListIndex(level - 1);
            dock().setFloating(true);
            dock().move(10, 10);
            dock().resize(canvas().width() * level + 30, canvas().height() * level + 90);
        });
        eventually("the whole form", [this] {
            for (const auto* bar : zoom()->findChildren<QScrollBar*>())
                if (!bar->isHidden()) return false;
            return zoom()->isVisible() && zoom()->canvas() != nullptr;
        });
    }
    void dockAgain() {
        ask([this] { dock().setFloating(false); });
        eventually("the dock", [this] { return zoom()->isVisible() && zoom()->canvas(); });
    }
    /// On the screen: a place of the canvas in the designer, and in the zoom window.
    QPoint inDesigner(const QPoint& onCanvas) {
        return ask([&] { return canvas().mapToGlobal(onCanvas); });
    }
    QPoint inZoom(const QPoint& onCanvas) {
        return ask([&] {
            const auto& document = *zoom()->document();
            return zoom()->mapToGlobal(onCanvas * level() - QPoint(document.GetXOffset(), document.GetYOffset()));
        });
    }
    QPoint middleOfControl(const std::string& name) {
        return ask([&] {
            const auto* drawn = view().picture().find(control(name));
            return canvas().onCanvas(drawn->place).center().toPoint();
        });
    }
    vbide::Ref<vbide::VBControl> control(const std::string& name) {
        return component("frmMain")->Designer()->VBControls()->Item(name);
    }
    std::string valueOf(const std::string& name, const std::string& property) {
        return fernwick::asText(control(name)->Properties()->Item(property)->Value());
    }
    /// "left, top, width, height" in twips.
    std::string placeOf(const std::string& name) {
        std::string place;
        for (const auto* property : {"Left", "Top", "Width", "Height"}) place += valueOf(name, property) + ", ";
        return place;
    }
    bool isSelected(const std::string& name) { return view().selected() && view().selected() == control(name); }
    void undo() {
        ask([this] { window().design().undo(); });
    }
    /// The smallest rectangle of a colour in a widget as it is on the screen, in device pixels from its corner. To be
    /// called in the window's thread.
    static QRect shownPlace(QWidget& widget, const QColor& colour) {
        const auto picture = widget.screen()->grabWindow(widget.winId()).toImage();
        QRect place;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixelColor(x, y) == colour) place |= QRect(x, y, 1, 1);
        return place;
    }
    static void hold(const QPoint& from, const std::vector<QPoint>& to) {
        xdotool(QStringList{"mousemove"} + pixels(from) + QStringList{"mousedown", "1"});
        for (const auto& at : to) xdotool(QStringList{"mousemove"} + pixels(at));
    }
    static void letGo() { xdotool({"mouseup", "1"}); }
    static void shiftClick(const QPoint& at) {
        xdotool({"keydown", "shift"});
        click(at);
        xdotool({"keyup", "shift"});
    }
    /// Presses on a control in the zoom window and moves it, without a release.
    void beginDrag(const std::string& name) {
        const auto middle = middleOfControl(name);
        hold(inZoom(middle), {inZoom(middle + QPoint(16, 16))});
        eventually("it is dragged", [this] { return canvas().isDragging(); });
    }
    void expectLost() {
        eventually("the drag has ended", [this] { return bench->windows().mouse().captured() == 0; });
    }
    /// That a later drag finds nothing left of one that was lost.
    void expectDragWorks() {
        const auto middle = middleOfControl("cmdTwo");
        drag(inZoom(middle), inZoom(middle + QPoint(16, 8)));
        eventually("it is moved", [this] { return valueOf("cmdTwo", "Left") == "840"; });
    }
    static QStringList pixels(const QPoint& at) {
        const auto scaled = QPointF(at) * qApp->devicePixelRatio();
        return {QString::number(int(std::ceil(scaled.x()))), QString::number(int(std::ceil(scaled.y())))};
    }
};

} // namespace

TEST_F(ZoomOnScreen, AMoveAndASizeAreThoseOfTheDesigner) {
    const QPoint by(24, 16);
    const auto middle = middleOfControl("cmdTwo");
    drag(inDesigner(middle), inDesigner(middle + by));
    eventually("the control is moved", [this] { return valueOf("cmdTwo", "Left") == "960"; });
    const auto moved = ask([this] { return placeOf("cmdTwo"); });
    const auto grip = ask([this] { return canvas().gripPlace(7).toPoint(); });
    drag(inDesigner(grip), inDesigner(grip + by));
    eventually("the control is sized", [this] { return valueOf("cmdTwo", "Width") != "960"; });
    const auto sized = ask([this] { return placeOf("cmdTwo"); });
    undo();
    undo();
    for (const int level : {1, 3, 4}) {
        enlarge(level);
        drag(inZoom(middle), inZoom(middle + by));
        eventually("moved at level " + std::to_string(level), [&] { return placeOf("cmdTwo") == moved; });
        drag(inZoom(grip), inZoom(grip + by));
        eventually("sized at level " + std::to_string(level), [&] { return placeOf("cmdTwo") == sized; });
        undo();
        undo();
    }
}

TEST_F(ZoomOnScreen, EachPixelIsASquare) {
    const double ratio = ask([this] { return window().devicePixelRatioF(); });
    const int off = ratio == std::floor(ratio) ? 0 : 2; // edges between two pixels
    ask([this] { view().select(nullptr); });
    for (const int level : {2, 4}) {
        enlarge(level);
        QRect shown;
        eventually("the control at level " + std::to_string(level), [&] {
            shown = shownPlace(*zoom(), Qt::red);
            constexpr int kAtLeast = 70; // pixels of the form; that of another level is smaller
            return shown.width() >= kAtLeast * level * ratio;
        });
        const auto designed =
            ask([this] { return canvas().onCanvas(view().picture().find(control("txtOne"))->place); });
        const auto expected = ask([&] {
            const auto& document = *zoom()->document();
            const QPointF corner = designed.topLeft() * level - QPointF(document.GetXOffset(), document.GetYOffset());
            return QRectF(corner * ratio, designed.size() * level * ratio);
        });
        // inside the edge of the text box, which is two pixels wide
        const double edge = 2 * level * ratio;
        EXPECT_NEAR(shown.left(), expected.left() + edge, off + level * ratio) << level;
        EXPECT_NEAR(shown.top(), expected.top() + edge, off + level * ratio) << level;
        EXPECT_NEAR(shown.width(), expected.width() - 2 * edge, 2 * (off + level * ratio)) << level;
    }
}

TEST_F(ZoomOnScreen, FollowsWhileTheMouseIsDown) {
    enlarge(3);
    const auto middle = middleOfControl("txtOne");
    hold(inZoom(middle), {inZoom(middle + QPoint(8, 0)), inZoom(middle + QPoint(16, 8))});
    eventually("the outline in both", [this] {
        const auto outline = canvas().onCanvas(view().shownPlace()).toRect();
        const auto designed = canvas().grab().toImage();
        const auto shown = zoom()->grab().toImage();
        const double ratio = shown.devicePixelRatio();
        const auto& document = *zoom()->document();
        const QPoint corner = outline.topLeft() + QPoint(12, 0);
        const QPointF inZoomed =
            QPointF(corner * level() - QPoint(document.GetXOffset(), document.GetYOffset())) + QPointF(1, 1);
        return outline.topLeft() == canvas().onCanvas(QRectF(32, 24, 0, 0)).topLeft().toPoint() &&
               designed.pixelColor((QPointF(corner) * ratio).toPoint()) ==
                   shown.pixelColor((inZoomed * ratio).toPoint());
    });
    letGo();
    eventually("it is there", [this] { return valueOf("txtOne", "Left") == "480"; });
}

TEST_F(ZoomOnScreen, IsIdleWhileNothingChanges) {
    enlarge(2);
    xdotool(QStringList{"mousemove"} + pixels(inZoom({20, 30})));
    QThread::msleep(600);
    const int paints = ask([this] { return zoom()->paints(); }), copies = ask([this] { return zoom()->transfers(); });
    QThread::msleep(3000);
    EXPECT_EQ(ask([this] { return zoom()->paints(); }), paints);
    const int since = ask([this] { return zoom()->transfers(); }) - copies;
    EXPECT_GE(since, 4);
    EXPECT_LE(since, 7);
}

TEST_F(ZoomOnScreen, KeysWorkInDockAndOutside) {
    for (const bool floats : {false, true}) {
        floats ? enlarge(2) : dockAgain();
        ask([this] { view().select(nullptr); });
        if (!floats) ask([this] { zoom()->document()->Combo1.ListIndex(0); });
        click(inZoom(floats ? middleOfControl("cmdTwo") : middleOfControl("txtOne")));
        const auto* const name = floats ? "cmdTwo" : "txtOne";
        eventually("it is selected", [&] { return isSelected(name); });
        const auto left = ask([&] { return std::stoi(valueOf(name, "Left")); });
        press({"ctrl+Right"});
        eventually("it is moved", [&] { return std::stoi(valueOf(name, "Left")) == left + 120; });
        press({"shift+Down"});
        press({"Delete"});
        eventually("it is removed", [&] { return view().picture().controls.size() == 1; });
        press({"ctrl+z"});
        eventually("it is back", [&] { return view().picture().controls.size() == 2; });
    }
}

TEST_F(ZoomOnScreen, EscapeAndAClosedDesignerEndADrag) {
    enlarge(2);
    const auto before = ask([this] { return placeOf("cmdTwo"); });
    beginDrag("cmdTwo");
    press({"Escape"});
    expectLost();
    letGo();
    EXPECT_EQ(ask([this] { return placeOf("cmdTwo"); }), before);
    beginDrag("cmdTwo");
    press({"ctrl+F4"});
    eventually("the designer is closed", [this] { return !window().design().forms().current(); });
    expectLost();
    letGo();
    begin([this] { window().design().open(component("frmMain")); });
    eventually("the designer", [this] { return zoom()->canvas() && window().design().forms().current(); });
    EXPECT_EQ(ask([this] { return placeOf("cmdTwo"); }), before);
    expectDragWorks();
}

TEST_F(ZoomOnScreen, ABoxEndsADrag) {
    enlarge(2);
    const auto before = ask([this] { return placeOf("cmdTwo"); });
    beginDrag("cmdTwo");
    begin([this] { QMessageBox::information(&window(), "A box", "It opens while the mouse is down."); });
    eventually("the box",
               [] { return QApplication::activeModalWidget() && QApplication::activeModalWidget()->isActiveWindow(); });
    expectLost();
    letGo();
    press({"Return"});
    eventually("no box", [] { return !QApplication::activeModalWidget(); });
    EXPECT_EQ(ask([this] { return placeOf("cmdTwo"); }), before);
    expectDragWorks();
}

TEST_F(ZoomOnScreen, ShiftClicksSelectSeveralControls) {
    enlarge(2);
    ask([this] { view().select(nullptr); });
    click(inZoom(middleOfControl("txtOne")));
    eventually("one is selected", [this] { return isSelected("txtOne"); });
    shiftClick(inZoom(middleOfControl("cmdTwo")));
    eventually("both are selected", [this] { return isSelected("cmdTwo") && view().selection().size() == 2; });
    const auto beside = middleOfControl("cmdTwo") + QPoint(20, 8); // two presses at one place are a double click
    drag(inZoom(beside), inZoom(beside + QPoint(16, 8)));
    eventually("both are moved", [this] {
        return valueOf("cmdTwo", "Left") == "840" && valueOf("txtOne", "Left") == "480" &&
               valueOf("txtOne", "Top") == "360";
    });
    shiftClick(inZoom(middleOfControl("txtOne")));
    eventually("one is left", [this] { return isSelected("cmdTwo") && view().selection().size() == 1; });
}

TEST_F(ZoomOnScreen, IsClosedAndOpenedAgain) {
    ask([this] { dock().close(); });
    QThread::msleep(1000);
    choose("&Fernwick", "&Zoom Window");
    eventually("the zoomed designer", [this] { return zoom() && zoom()->isVisible() && zoom()->canvas(); });
    EXPECT_FALSE(ask([] { return QApplication::activeModalWidget(); }));
    int windows = 0;
    ask([&] {
        for (const auto& open : bench->host().Windows()->items()) windows += open->Caption() == "Fernwick Zoom";
    });
    EXPECT_EQ(windows, 1);
}
