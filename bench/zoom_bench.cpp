// Measures the zoom window: the copy and paint of a changed picture at level 5 beside one QPainter::drawPixmap of the same
// picture to the same place, and the moves of a drag over a form of 200 controls beside one painting of that form. Run it
// with QT_SCALE_FACTOR=1 and 2. Status 1 if the copy and paint cost more than 1.2 of the peer.
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/window/workbench.h"
#include "Apps/workbench/zoom/designer_image.h"
#include "Apps/workbench/zoom/zoom_view.h"
#include "bench/offscreen_desktop.h"
#include "tests/support/sample_project.h"
#include <QApplication>
#include <QDockWidget>
#include <QImage>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <fmt/format.h>

namespace {

constexpr int kWidth = 240, kHeight = 320, kLevel = 5, kRounds = 200, kMoves = 500, kControls = 200;
constexpr double kMostRatio = 1.2;
constexpr int kTwips = 15;

using Times = std::vector<double>;

template <class Act>
double milliseconds(Act&& act) {
    const auto begin = std::chrono::steady_clock::now();
    act();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

double quantile(Times times, double share) {
    std::sort(times.begin(), times.end());
    return times[std::min(times.size() - 1, std::size_t(double(times.size()) * share))];
}

std::string formOf(int controls) {
    auto text = test::formText("frmMain");
    const auto size = [&](const char* side, int pixels) {
        for (const auto* name : {"Client", "Scale"}) {
            const auto at = text.find(std::string(name) + side);
            const auto from = text.find("2400", at);
            text.replace(from, 4, std::to_string(pixels * kTwips));
        }
    };
    size("Width", kWidth);
    size("Height", kHeight);
    std::string lines;
    for (int i = 0; i < controls; ++i)
        lines += fmt::format(
            "   Begin VB.CommandButton cmd{} \r\n      Caption = \"{}\"\r\n      Height = 240\r\n      Left = {}\r\n"
            "      Top = {}\r\n      Width = 300\r\n   End\r\n",
            i, i, i % 10 * 24 * kTwips, i / 10 * 16 * kTwips);
    return text.insert(text.find("End\r\nAttribute"), lines);
}

class ZoomBench {
public:
    explicit ZoomBench(int controls) {
        bench_.connect();
        bench_.open(test::SampleProject("Zoomed")
                        .member("Form=frmMain.frm", "frmMain.frm", formOf(controls))
                        .handheld("PalmOS-DragonBall")
                        .writeTo(folder_));
        bench_.window().resize(1000, 700);
        bench_.window().show();
        QTest::qWait(100);
        bench_.window().design().open(bench_.host().ActiveVBProject()->VBComponents()->Item("frmMain"));
        bench_.addIn().zoom.ShowZoomWin();
        QTest::qWait(100);
        auto& dock = *bench_.window().findChild<QDockWidget*>("Fernwick Zoom");
        dock.setFloating(true);
        dock.resize(kWidth * kLevel + 200, kHeight * kLevel + 400);
        view().document()->Combo1.ListIndex(kLevel - 1);
        QTest::qWait(700);
    }
    ~ZoomBench() {
        for (const auto& open : bench_.host().VBProjects()->items()) {
            open->IsDirty(false);
            for (const auto& component : open->VBComponents()->items()) component->IsDirty(false);
        }
    }

    workbench::ZoomView& view() { return *bench_.window().findChild<workbench::ZoomView*>("zoomPicture"); }
    workbench::FormCanvas& canvas() { return *view().canvas(); }

    /// True if the copy and paint of a changed picture cost at most 1.2 of drawing it.
    bool compareWithPeer() {
        auto& windows = bench_.windows();
        const auto surface = surfaceOf(windows);
        const auto document = windows.WindowOfDocument(*view().document());
        const double ratio = view().devicePixelRatioF();
        QImage ours((QSizeF(kWidth, kHeight) * kLevel * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        ours.setDevicePixelRatio(ratio);
        auto peers = ours;
        Times copied, drawn, designed;
        for (int round = 0; round < kRounds; ++round) {
            designed.push_back(milliseconds([&] {
                canvas().redraw();
                QApplication::processEvents();
            }));
            copied.push_back(milliseconds([&] {
                windows.StretchBlt(document, {0, 0, kWidth * kLevel, kHeight * kLevel}, surface,
                                   {0, 0, kWidth, kHeight}, fernwick::SRCCOPY);
                view().render(&ours, {}, QRect(0, 0, kWidth * kLevel, kHeight * kLevel), {});
            }));
            const auto picture = pictureOf(windows, surface);
            drawn.push_back(milliseconds([&] {
                QPainter painter(&peers);
                painter.drawPixmap(QRectF(0, 0, kWidth * kLevel, kHeight * kLevel), picture,
                                   QRectF(0, 0, kWidth * ratio, kHeight * ratio));
            }));
        }
        const double ratioOfCosts = quantile(copied, 0.5) / quantile(drawn, 0.5);
        fmt::print("at pixel ratio {}: copy and paint {:.2f} ms, drawPixmap {:.2f} ms, ratio {:.2f} (at most {}); the "
                   "designer's own drawing with one refresh {:.2f} ms\n",
                   ratio, quantile(copied, 0.5), quantile(drawn, 0.5), ratioOfCosts, kMostRatio,
                   quantile(designed, 0.5));
        return ratioOfCosts <= kMostRatio;
    }

    /// Of a drag over many controls.
    void reportMoves() {
        const double whole = milliseconds([&] {
                                 for (int i = 0; i < 10; ++i) (void)canvas().grab();
                             }) /
                             10;
        const auto from = zoomed(canvas().onCanvas(QRectF(10, 8, 0, 0)).topLeft().toPoint());
        QTest::mousePress(&view(), Qt::LeftButton, {}, from);
        Times moves;
        for (int i = 0; i < kMoves; ++i)
            moves.push_back(milliseconds([&] {
                QTest::mouseMove(&view(), from + QPoint(i % 100 * 8, i % 37 * 8));
                QApplication::processEvents();
            }));
        QTest::keyClick(&view(), Qt::Key_Escape);
        fmt::print(
            "{} moves of a drag over {} controls: median {:.1f} ms, p99 {:.1f} ms; painting the form once {:.1f} ms, "
            "ratio of the p99 {:.1f}\n",
            kMoves, kControls, quantile(moves, 0.5), quantile(moves, 0.99), whole, quantile(moves, 0.99) / whole);
    }

private:
    QPoint zoomed(const QPoint& onCanvas) {
        return onCanvas * kLevel - QPoint(view().document()->GetXOffset(), view().document()->GetYOffset());
    }
    static fernwick::Hwnd surfaceOf(workbench::DesktopWindows& windows) {
        fernwick::Hwnd designer = 0, surface = 0;
        windows.EnumChildWindows(windows.MainWindow(),
                                 [&](fernwick::Hwnd window) { return (designer = window, false); });
        windows.EnumChildWindows(designer, [&](fernwick::Hwnd window) { return (surface = window, false); });
        return surface;
    }
    static QPixmap pictureOf(workbench::DesktopWindows& windows, fernwick::Hwnd surface) {
        return windows.imageOf(surface)->pixmap();
    }

    test::TempFolder folder_;
    workbench::Workbench bench_;
};

} // namespace

int main(int argc, char** argv) {
    const bench::OffscreenDesktop desktop(argc, argv);
    QApplication::setOrganizationName("fernwick");
    QApplication::setApplicationName("zoom-bench");
    bool good = true;
    good = ZoomBench(8).compareWithPeer();
    ZoomBench(kControls).reportMoves();
    return good ? 0 : 1;
}
