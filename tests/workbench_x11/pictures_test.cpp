// The pictures of the README, taken from the real window by scripts/make-window-pictures.
#include "tests/workbench_x11/x_desktop.h"
#include <QScreen>

using namespace test;

namespace {

struct Pictures : XDesktop {
    Pictures() {
        ask([this] { window().resize(960, 600); });
    }
    /// The part of the screen that the window covers.
    QImage taken(const char* name) {
        const auto picture = ask([this] {
            const auto frame = window().frameGeometry();
            return window().screen()->grabWindow(0, frame.x(), frame.y(), frame.width(), frame.height()).toImage();
        });
        const auto scale = picture.devicePixelRatio() > 1 ? "@2x" : "";
        EXPECT_TRUE(picture.save(QString(FERNWICK_BINARY_DIR "/window-%1%2.png").arg(name, scale)));
        return picture;
    }
    void compileWithAnError() {
        openSample("AddressBook");
        click(explorerEntry("frmList"));
        press({"F7"});
        eventually("the code", [this] { return code() && code()->hasFocus(); });
        ask([this] { component("frmList")->CodeModule()->InsertLines(1, "Private shown As Strin g"); });
        choose("&Fernwick", "Compile and &Validate");
        answerUntil("messages", {With::Mouse, {"btnYes", "OK"}}, [this] {
            return !QApplication::activeModalWidget() && messages() && messages()->model()->rowCount() > 0;
        });
        ask([this] { code()->setFirstVisibleLine(0); });
    }
};

bool isDark(const QImage& picture) { return picture.pixelColor(picture.rect().center()).lightness() < 128; }

} // namespace

TEST_F(Pictures, OfBothThemes) {
    compileWithAnError();
    EXPECT_FALSE(isDark(taken("light")));
    ask([this] { window().setTheme(workbench::Theme::Dark); });
    eventually("all is drawn", [] { return !QGuiApplication::screens().isEmpty(); });
    EXPECT_TRUE(isDark(taken("dark")));
}

TEST_F(Pictures, OfADialog) {
    openSample("AddressBook");
    choose("&File", "&New Project...");
    eventually("the dialog",
               [] { return QApplication::activeModalWidget() && QApplication::activeModalWidget()->isActiveWindow(); });
    EXPECT_FALSE(taken("dialog").isNull());
    press({"Escape"});
    eventually("it is gone", [] { return !QApplication::activeModalWidget(); });
}
