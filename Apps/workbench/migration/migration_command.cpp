#include "Apps/workbench/migration/migration_command.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/code_windows.h"
#include "Apps/workbench/designer/design_desk.h"
#include "Apps/workbench/migration/migration_report.h"
#include "Basic/runtime_error.h"
#include "Host/files/code_file.h"
#include "Host/files/text_file.h"
#include <QFileInfo>

namespace workbench {

namespace {

constexpr auto kNoFile = "Save the project first. The migration report reads its files.";

std::string deviceOf(vbide::VBProject& project) {
    std::string key;
    (void)basic::attempt([&] { key = project.ReadProperty("Quinloft Global", "TargetDevice"); });
    return key;
}

vbide::Ref<vbide::VBComponent> componentOf(vbide::VBProject& project, const std::string& file) {
    const QFileInfo wanted(qt(file));
    for (const auto& component : project.VBComponents()->items())
        if (QFileInfo(qt(component->FileNames(1))) == wanted) return component;
    return nullptr;
}

/// The line of the code window, which hides attributes within the code.
int windowLineOf(const apps::Hindrance& place, const basic::CodePage& page) {
    const auto bytes = host::readFile(place.file).bytes;
    const host::CodeText code{host::splitSource(bytes).code, page, host::LineEnd::CrLf};
    return int(code.windowLine(place.codeLine));
}

} // namespace

void openMigrationReport(const vbide::Ref<vbide::VBProject>& project, CodeWindows& code, DesignDesk& design,
                         QWidget* window) {
    const auto path = project->FileName();
    if (path.empty()) throw basic::RuntimeError(basic::kInvalidProcedureCall, kNoFile);
    auto read = apps::readProject(path);
    const auto show = [project, &code, &design, page = read.page.page](const apps::Hindrance& place) {
        (void)basic::attempt([&] { // the project may be closed
            const auto component = componentOf(*project.shared(), place.file);
            if (!component) return;
            if (place.codeLine > 0)
                code.showPlace({component, windowLineOf(place, page) - 1, int(place.column) - 1, 0});
            else
                design.open(component);
        });
    };
    auto* const report = new MigrationReport(std::move(read), deviceOf(*project.shared()), show, window);
    report->setAttribute(Qt::WA_DeleteOnClose);
    report->show();
}

} // namespace workbench
