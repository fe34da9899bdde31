// Measures the time until the desktop is drawn, without a project and with a project of 300 hidden components, which
// are read but not parsed. Also checks that adding messages and updating their layout takes linear time: ten times as
// many messages cost ten times as much.
#include "Apps/workbench/window/workbench.h"
#include "bench/offscreen_desktop.h"
#include "tests/support/sample_project.h"
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <chrono>
#include <fmt/format.h>

namespace {

constexpr int kComponents = 300, kRounds = 5;

std::string largeProject(const test::TempFolder& folder) {
    std::string code = "Option Explicit\r\n";
    for (int i = 0; i < 50; ++i) code += fmt::format("Public Sub Part{}()\r\n    Beep\r\nEnd Sub\r\n", i);
    test::SampleProject project{"Large"};
    for (int i = 0; i < kComponents; i += 3)
        project.form(fmt::format("frmPart{}", i), code)
            .module(fmt::format("modPart{}", i), code)
            .classModule(fmt::format("clsPart{}", i), code);
    return project.writeTo(folder);
}

/// Milliseconds from construction to the first paint of the window; the best of several rounds.
double timeToPaint(const std::string& path) {
    double best = 1e9;
    for (int i = 0; i < kRounds; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        workbench::Workbench bench;
        if (!path.empty()) bench.open(path);
        bench.window().show();
        if (!QTest::qWaitForWindowExposed(&bench.window())) continue;
        (void)bench.window().grab();
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begin;
        best = std::min(best, taken.count());
        for (const auto& project : bench.host().VBProjects()->items()) project->IsDirty(false);
    }
    return best;
}

constexpr int kFewMessages = 1'000, kManyMessages = 10'000;

/// Milliseconds of `act` including painting.
template <class Act>
double drawn(QWidget& window, Act&& act) {
    const auto begin = std::chrono::steady_clock::now();
    act();
    QApplication::processEvents();
    (void)window.grab();
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begin;
    return taken.count();
}

struct MessageTimes {
    double added = 1e9, oneByOne = 1e9, resized = 1e9, filtered = 1e9;
};

/// Times for messages that are added and drawn together, or one by one with event processing; then for a narrower
/// window and a filter. The best of several rounds.
MessageTimes timesOfMessages(workbench::Workbench& bench, int count) {
    auto& window = bench.window();
    auto& messages = bench.addIn().messages;
    auto& filter = *window.findChild<QLineEdit*>("messageFilter");
    const auto add = [&](int number) {
        const auto text =
            fmt::format("The name part{} is not declared here. ", number) + std::string(number % 200, 'x');
        messages.addToToolWindow("/p/modPart.bas", "modPart", number, text, fernwick::ERROR_MSG, 1501, true);
    };
    MessageTimes best;
    for (int round = 0; round < kRounds; ++round) {
        window.resize(1100, 720);
        messages.clearToolWindow();
        QTest::qWait(50); // until the next repaint is due
        const auto all = drawn(window, [&] {
            for (int i = 0; i < count; ++i) add(i);
        });
        const auto resized = drawn(window, [&] { window.resize(800, 720); });
        const auto filtered = drawn(window, [&] { filter.setText("part7"); });
        filter.clear();
        messages.clearToolWindow();
        const auto oneByOne = drawn(window, [&] {
            for (int i = 0; i < count; ++i) {
                add(i);
                QApplication::processEvents();
            }
        });
        best = {std::min(best.added, all), std::min(best.oneByOne, oneByOne), std::min(best.resized, resized),
                std::min(best.filtered, filtered)};
    }
    return best;
}

/// True if ten times as many messages take at most twice the time of linear growth.
bool messagesGrowLinearly(const std::string& project) {
    constexpr double kMostRatio = 2.0 * kManyMessages / kFewMessages;
    workbench::Workbench bench;
    bench.open(project);
    bench.connect();
    bench.window().show();
    bench.addIn().messages.showToolWindow();
    if (!QTest::qWaitForWindowExposed(&bench.window())) return false;
    const auto few = timesOfMessages(bench, kFewMessages), many = timesOfMessages(bench, kManyMessages);
    bool good = true;
    const auto report = [&](const char* what, double less, double more) {
        fmt::print("{} messages {}: {:.0f} ms, {}: {:.0f} ms, ratio {:.1f} (at most {:.0f})\n", kFewMessages, what,
                   less, kManyMessages, more, more / less, kMostRatio);
        good = good && more / less <= kMostRatio;
    };
    report("added at once", few.added, many.added);
    report("added one by one", few.oneByOne, many.oneByOne);
    report("in a resized window", few.resized, many.resized);
    report("filtered", few.filtered, many.filtered);
    for (const auto& open : bench.host().VBProjects()->items()) open->IsDirty(false);
    return good;
}

} // namespace

int main(int argc, char** argv) {
    const bench::OffscreenDesktop desktop(argc, argv);
    (void)timeToPaint({}); // loads fonts and styles, which are cached
    const auto project = largeProject(desktop.home());
    const double empty = timeToPaint({}), large = timeToPaint(project);
    fmt::print("first picture: empty {:.0f} ms, {} components {:.0f} ms, ratio {:.2f} (at most 5)\n", empty,
               kComponents, large, large / empty);
    return !messagesGrowLinearly(project) || large / empty > 5;
}
