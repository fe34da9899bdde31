// Measures growth: runs each job at two sizes and prints the ratio of the times per item. Linear growth is near 1.
#include "Apps/fernwick/run/session.h"
#include "Host/files/project_file.h"
#include "tests/support/form_text.h"
#include "tests/support/sample_project.h"
#include <chrono>
#include <cstdio>
#include <fmt/format.h>

namespace {

using Clock = std::chrono::steady_clock;

/// The best of five runs, in seconds.
template <class Job>
double bestOf(Job&& job) {
    double best = 1e9;
    for (int i = 0; i < 5; ++i) {
        const auto begin = Clock::now();
        job();
        best = std::min(best, std::chrono::duration<double>(Clock::now() - begin).count());
    }
    return best;
}

template <class Job>
void compare(const char* what, int small, int large, Job&& job) {
    const double few = job(small) / small, many = job(large) / large;
    fmt::print("{:<44}{:>7} : {:<7} ratio a piece {:.2f}   ({:.2f} us a piece)\n", what, large, small, many / few,
               many * 1e6);
}

std::string projectOf(const test::TempFolder& folder, int components) {
    test::SampleProject project{"Large"};
    for (int i = 0; i < components; ++i)
        project.module(fmt::format("modPart{}", i), "Option Explicit\r\nPublic Sub Part()\r\nEnd Sub\r\n");
    return project.writeTo(folder);
}

double loadProject(int components) {
    const test::TempFolder folder;
    const auto path = projectOf(folder, components);
    return bestOf([&] {
        const auto host = host::Host::create();
        host->VBProjects()->AddFromFile(path);
        host->close();
    });
}

double writeProperties(int count) {
    return bestOf([&] {
        host::ProjectFile file{"Type=Exe\r\nName=\"P\"\r\n", basic::CodePage::windows1252()};
        for (int i = 0; i < count; ++i) file.writeProperty("Section", fmt::format("Key{}", i), "value");
    });
}

double readProperties(int count) {
    host::ProjectFile file{"Type=Exe\r\nName=\"P\"\r\n", basic::CodePage::windows1252()};
    for (int i = 0; i < count; ++i) file.writeProperty("Section", fmt::format("Key{}", i), "value");
    std::size_t length = 0;
    const double taken = bestOf([&] {
        for (int i = 0; i < count; ++i) length += file.readProperty("section", fmt::format("key{}", i)).size();
    });
    return length > 0 ? taken : 0;
}

double storeMessages(int count) {
    const test::TempFolder folder;
    const auto path = projectOf(folder, 100);
    const cli::Options options;
    cli::Console console{cli::Verbosity::Quiet};
    cli::Session session{options, console};
    session.open(path);
    session.connect();
    auto& messages = session.addIn().messages;
    const double taken = bestOf([&] {
        messages.ClearProjectCompileErrors(session.project());
        for (int i = 0; i < count; ++i)
            messages.AddProjectCompileError(session.project(), "Expected: an expression, found: end of line.",
                                            folder / fmt::format("modPart{}.bas", i % 100), i + 1, 1800);
    });
    session.closeUnsaved();
    return taken;
}

constexpr int kControlsOfForm = 50;

/// A form with controls that have fonts of several sizes and an event procedure each.
std::string formOf(const std::string& name) {
    static constexpr const char* kClasses[] = {"QLLabel", "QLButton", "QLTextBox", "QLPicture"};
    std::vector<test::FormControl> controls;
    std::string code;
    for (int i = 0; i < kControlsOfForm; ++i) {
        controls.push_back({kClasses[i % 4], fmt::format("ctl{}", i), "QLPalm", i % 2, 8 + i % 20});
        code += fmt::format("Private Sub ctl{}_Click()\r\nEnd Sub\r\n", i);
    }
    return test::deviceForm(name, controls, code);
}

/// Opens a project with this number of forms and the add-in, and times the job.
template <class Job>
double withForms(int forms, Job&& job) {
    const test::TempFolder folder;
    test::SampleProject sample{"Large"};
    sample.handheld("PalmOS-DragonBall");
    for (int i = 0; i < forms; ++i) {
        const auto name = fmt::format("frmPart{}", i);
        sample.member("Form=" + name + ".frm", name + ".frm", formOf(name));
    }
    const cli::Options options;
    cli::Console console{cli::Verbosity::Quiet};
    cli::Session session{options, console};
    session.open(sample.writeTo(folder));
    session.connect();
    const double taken = bestOf([&] { job(session.addIn(), session.project()); });
    session.closeUnsaved();
    return taken;
}

double validateForms(int forms) {
    return withForms(forms, [](fernwick::Modules& addIn, const basic::Ref<vbide::VBProject>& project) {
        const auto settings = addIn.projects.GetQLProject(project);
        for (const auto& form : project->VBComponents()->items()) addIn.validate.ScanForm(settings, form, true);
    });
}

double scanFonts(int forms) {
    return withForms(forms, [](fernwick::Modules& addIn, const basic::Ref<vbide::VBProject>& project) {
        addIn.messages.ClearProjectCompileErrors(project);
        addIn.dependencies.ScanProjectForFontDependencies(addIn.projects.GetQLProject(project));
    });
}

} // namespace

int main() {
    compare("project load, components", 300, 3000, loadProject);
    compare("add-in values written", 1000, 10000, writeProperties);
    compare("add-in values read", 1000, 10000, readProperties);
    compare("messages stored", 1000, 10000, storeMessages);
    compare("forms of 50 controls validated", 100, 1000, validateForms);
    compare("forms of 50 controls scanned for fonts", 100, 1000, scanFonts);
    return 0;
}
