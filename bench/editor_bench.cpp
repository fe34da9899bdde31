// Measures the processor time of a key in the code editor. It must not depend on the length of the module: in one of 20,000
// lines a key may cost at most three times as much as in one of 2,000, where the desktop itself takes most of the time.
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/window/workbench.h"
#include "bench/offscreen_desktop.h"
#include "tests/support/sample_project.h"
#include <QApplication>
#include <QTest>
#include <ctime>
#include <fmt/format.h>

namespace {

constexpr int kLinesOfProcedure = 20, kRounds = 3, kKeys = 40;
constexpr int kFewLines = 2'000, kManyLines = 20'000;

std::string moduleOf(int lines) {
    std::string code = "Option Explicit\r\n";
    for (int i = 0; i < lines / kLinesOfProcedure; ++i) {
        code += fmt::format("\r\n' Number {0}\r\nPublic Sub Part{0}(ByVal x As Long)\r\n    If x > 1 Then\r\n", i);
        for (int line = 0; line < kLinesOfProcedure - 7; ++line) code += "        Debug.Print \"A line\", x + 1\r\n";
        code += "    End If\r\nEnd Sub\r\n";
    }
    return code;
}

double processorMilliseconds() {
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

struct KeyTimes {
    double letter = 1e9, enter = 1e9, name = 1e9, rest = 1e9;
};

/// Of one key with its painting, on average; the best of several rounds.
double timeOf(int keys, const std::function<void(int)>& press) {
    double best = 1e9;
    for (int round = 0; round < kRounds; ++round) {
        const auto begin = processorMilliseconds();
        for (int i = 0; i < keys; ++i) {
            press(i);
            QApplication::processEvents();
        }
        best = std::min(best, (processorMilliseconds() - begin) / keys);
    }
    return best;
}

KeyTimes timesOf(const std::string& project) {
    workbench::Workbench bench;
    bench.open(project);
    bench.window().show();
    const auto component = bench.host().ActiveVBProject()->VBComponents()->Item(1);
    component->CodeModule()->CodePane()->Show();
    (void)QTest::qWaitForWindowExposed(&bench.window());
    auto& text = bench.window().code().current()->scintilla();
    text.setCursorPosition(7, 8); // in the first procedure, above all others
    QTest::qWait(500);
    KeyTimes times;
    times.letter = timeOf(kKeys, [&text](int) { QTest::keyClick(&text, Qt::Key_A); });
    // half of them leave a typed line, whose words are corrected
    times.enter = timeOf(kKeys, [&text](int i) { QTest::keyClick(&text, i % 2 == 0 ? Qt::Key_Return : Qt::Key_B); });
    QTest::keyClick(&text, Qt::Key_Space);
    QTest::keyClick(&text, Qt::Key_J, Qt::ControlModifier);
    times.name = timeOf(kKeys, [&text](int i) { QTest::keyClick(&text, i % 2 == 0 ? Qt::Key_P : Qt::Key_Backspace); });
    const auto begin = processorMilliseconds();
    QTest::qWait(500);
    times.rest = processorMilliseconds() - begin;
    bench.host().ActiveVBProject()->IsDirty(false);
    component->IsDirty(false);
    return times;
}

} // namespace

int main(int argc, char** argv) {
    const bench::OffscreenDesktop desktop(argc, argv);
    const auto project = [&desktop](const char* name, int lines) {
        return test::SampleProject(name).module(name + std::string("Module"), moduleOf(lines)).writeTo(desktop.home());
    };
    const auto few = timesOf(project("Few", kFewLines)), many = timesOf(project("Many", kManyLines));
    bool good = true;
    const auto report = [&good](const char* what, double less, double more) {
        constexpr double kMostRatio = 3;
        fmt::print("{}: {} lines {:.2f} ms, {} lines {:.2f} ms, ratio {:.2f} (at most {:.0f})\n", what, kFewLines, less,
                   kManyLines, more, more / less, kMostRatio);
        good = good && more / less <= kMostRatio;
    };
    report("a letter", few.letter, many.letter);
    report("Enter and a letter", few.enter, many.enter);
    fmt::print("a letter with the list of names: {} lines {:.2f} ms, {} lines {:.2f} ms\n", kFewLines, few.name,
               kManyLines, many.name);
    fmt::print("the pause after typing: {} lines {:.2f} ms, {} lines {:.2f} ms\n", kFewLines, few.rest, kManyLines,
               many.rest);
    return !good;
}
