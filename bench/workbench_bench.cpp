// How long the desktop takes until it is drawn: empty, and with a project of 300 components of which none is shown. What
// isn't shown is read but not taken apart, so a project costs little more than its files.
#include "Apps/workbench/workbench.h"
#include "tests/support/sample_project.h"
#include <QApplication>
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

/// Milliseconds from nothing to the window's first picture; the best of some rounds.
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

} // namespace

int main(int argc, char** argv) {
    const test::TempFolder home;
    for (const char* folder : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "FERNWICK_MACHINE_STORE"})
        qputenv(folder, QByteArray::fromStdString(home.path()));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    workbench::apply(workbench::Theme::Light);
    (void)timeToPaint({}); // fonts and styles are read once
    const double empty = timeToPaint({}), large = timeToPaint(largeProject(home));
    fmt::print("first picture: empty {:.0f} ms, {} components {:.0f} ms, ratio {:.2f} (at most 5)\n", empty,
               kComponents, large, large / empty);
    return large / empty > 5;
}
