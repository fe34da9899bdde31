#include "Apps/workbench/project/recent_projects.h"
#include "Apps/workbench/base/text.h"
#include "Host/model/bars/bars.h"
#include "Host/model/projects.h"
#include <QSettings>

namespace workbench {

namespace {

constexpr auto kRecentKey = "projects/recent";
constexpr qsizetype kMostRecent = 8;
constexpr int kRecentProjectId = 1;

} // namespace

QStringList RecentProjects::stored() { return QSettings().value(kRecentKey).toStringList(); }

RecentProjects::RecentProjects(host::Host& host, std::shared_ptr<host::Bar> menu, Open open)
    : menu_(std::move(menu)), open_(std::move(open)) {
    const auto events = host.Events()->VBProjectsEvents();
    watches_.push_back(events->ItemAdded.connect([this, &host](auto project) {
        const auto path = project->FileName();
        const auto& group = host.projects().openingGroup();
        if (!group.empty()) members_.insert(path);
        if (!host.isTemplate(path)) remember(group.empty() ? path : group);
    }));
    watches_.push_back(events->ItemRemoved.connect([this, &host](auto project) {
        const auto path = project->FileName(); // it may have been saved in the meantime
        if (members_.erase(path) == 0 && !host.isTemplate(path)) remember(path);
    }));
    fill();
}

void RecentProjects::remember(const std::string& file) {
    const auto path = qt(file);
    if (path.isEmpty()) return;
    auto recent = stored();
    recent.removeAll(path);
    recent.prepend(path);
    QSettings().setValue(kRecentKey, recent.mid(0, kMostRecent));
    fill();
}

void RecentProjects::fill() {
    for (const auto& old : std::vector(menu_->list())) old->Delete();
    int number = 0;
    for (const auto& path : stored()) {
        const auto control = menu_->add(office::msoControlButton, kRecentProjectId);
        control->Caption(text(QString("&%1 %2").arg(++number).arg(QString(path).replace("&", "&&"))));
        control->action = [this, path] { open_(text(path)); };
    }
}

} // namespace workbench
