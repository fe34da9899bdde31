#pragma once
// The whole desktop with a form designer and the zoom window over it.
#include "Apps/workbench/zoom/zoom_view.h"
#include "tests/workbench/designer_desktop.h"
#include <QComboBox>
#include <QScrollBar>

namespace test {

class ZoomDesktop : public DesignerDesktop {
protected:
    /// Opens a form of a Fernwick project and the zoom window, which floats and is so large that nothing is scrolled.
    void openZoomed(const std::string& lines, const std::string& name = "frmMain") {
        bench->connect();
        settle();
        auto text = formText(name);
        for (auto at = text.find("2400"); at != std::string::npos; at = text.find("2400")) text.replace(at, 4, "3600");
        text.insert(text.find("End\r\nAttribute"), crLfOf(lines));
        original = text;
        bench->open(SampleProject("Zoomed")
                        .member("Object={1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0; Tavlets.dll")
                        .member("Form=" + name + ".frm", name + ".frm", text)
                        .handheld("PalmOS-DragonBall")
                        .writeTo(folder));
        settle();
        design(name);
        menuItem("&Fernwick", "&Zoom Window")->trigger();
        settle();
        dock().setFloating(true);
        dock().resize(kWide, kWide);
        settle();
    }
    workbench::ZoomView& zoom() { return *window().findChild<workbench::ZoomView*>("zoomPicture"); }
    QDockWidget& dock() { return *window().findChild<QDockWidget*>("Fernwick Zoom"); }
    int level() { return zoom().document()->Combo1.ListIndex() + 1; }
    void chooseLevel(int level) {
        auto& levels = *zoom().findChild<QComboBox*>("Combo1");
        levels.setCurrentIndex(level - 1);
        Q_EMIT levels.activated(level - 1);
        settle();
    }
    /// Where a place on the canvas is drawn in the zoom window.
    QPoint zoomed(const QPoint& onCanvas) {
        return onCanvas * level() - QPoint(zoom().document()->GetXOffset(), zoom().document()->GetYOffset());
    }
    /// Sends the event to this widget, whatever window is in front of it.
    static void moveMouse(QWidget& widget, const QPoint& at, Qt::MouseButtons buttons = Qt::NoButton) {
        QMouseEvent event(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, buttons, {});
        QApplication::sendEvent(&widget, &event);
    }
    void dragZoomed(const QPoint& from, const QPoint& by, Qt::KeyboardModifiers keys = {}) {
        QTest::mousePress(&zoom(), Qt::LeftButton, keys, zoomed(from));
        QApplication::processEvents(); // the move that is posted after a press on a grip
        moveMouse(zoom(), zoomed(from + by / 2), Qt::LeftButton);
        moveMouse(zoom(), zoomed(from + by), Qt::LeftButton);
        QTest::mouseRelease(&zoom(), Qt::LeftButton, keys, zoomed(from + by));
        settle();
    }
    void clickZoomed(const QPoint& at, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(&zoom(), Qt::LeftButton, keys, zoomed(at));
        settle();
    }

    static constexpr int kWide = 1800;
    static constexpr auto kControls = R"(   Begin VB.TextBox txtOne
      BackColor = &H000000FF&
      Height = 360
      Left = 240
      Top = 240
      Width = 1200
   End
   Begin VB.CommandButton cmdTwo
      Height = 480
      Left = 1800
      Top = 1200
      Width = 960
   End
   Begin VB.PictureBox picThree
      Height = 1200
      Left = 240
      Top = 1920
      Width = 1440
      Begin VB.Label lblFour
         Height = 240
         Left = 120
         Top = 120
         Width = 720
      End
   End
)";
};

} // namespace test
