#include "Apps/workbench/unsaved/recovery.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/title.h"
#include "Apps/workbench/project/project_saving.h"
#include "Apps/workbench/unsaved/unsaved_texts.h"
#include "Host/model/component.h"
#include "Host/model/components.h"
#include "Host/model/project.h"
#include "Host/model/projects.h"
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kMillisecondsBetweenLooks = 200;

/// The component that the text belongs to; null if the project no longer has it.
std::shared_ptr<host::Component> ownerOf(host::Project& project, const host::JournalEntry& entry) {
    for (const auto& component : project.components().list()) {
        const bool same = entry.file.empty() ? component->path().empty() && component->Name() == entry.component
                                             : component->path() == entry.file;
        if (same) return component;
    }
    return nullptr;
}

/// No handler is notified of the added component: the add-in would replace a "Form1" by its template.
void putBack(host::Project& project, const host::JournalEntry& entry) {
    if (isOfProject(entry)) return;
    if (const auto component = ownerOf(project, entry))
        component->restore(entry.bytes, entry.base, entry.records);
    else
        project.components().addSource(vbide::vbext_ComponentType(entry.type), entry.component, entry.bytes,
                                       entry.records);
}

void show(host::Project& project, const host::JournalEntry& entry) {
    if (const auto component = isOfProject(entry) ? nullptr : ownerOf(project, entry))
        component->CodeModule()->CodePane()->Show();
}

} // namespace

Recovery::Recovery(host::Host& host, QWidget& window, QString base, Callbacks callbacks)
    : host_(host), window_(window), base_(std::move(base)), discarded_(base_), callbacks_(std::move(callbacks)) {
    soon_.setSingleShot(true);
    QObject::connect(&soon_, &QTimer::timeout, [this] { offerAll(); });
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemAdded.connect([this](const auto& project) {
        asked_.erase(project->FileName());
        offerAllSoon();
    }));
}

void Recovery::offerAllSoon() { soon_.start(0); }

void Recovery::offerAll() {
    if (QApplication::activeModalWidget()) return soon_.start(kMillisecondsBetweenLooks);
    std::map<std::string, std::vector<Survivor>> byProject;
    const auto damaged = [this](const QString& path, const QString& why) { setAside(path, why); };
    for (auto& survivor : survivorsIn(base_, damaged)) byProject[survivor.entry.project].push_back(std::move(survivor));
    for (auto& [project, all] : byProject)
        if (asked_.insert(project).second) offer(project, newestOf(std::move(all)));
}

/// Renames a damaged journal, so that it is reported once and not lost.
void Recovery::setAside(const QString& path, const QString& why) {
    const auto aside = path + ".damaged";
    const bool moved = QFile::rename(path, aside);
    callbacks_.warn(QString(unsaved_texts::kDamaged).arg(why, moved ? aside : path));
}

void Recovery::offer(const std::string& project, std::vector<Survivor> all) {
    QStringList lines;
    for (const auto& survivor : all) lines << lineOf(survivor);
    QMessageBox box(QMessageBox::Question, kTitle, headlineOf(project, all), QMessageBox::NoButton, &window_);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(lines.join('\n') + "\n\n" +
                           QString(unsaved_texts::kWhatRestoreDoes).arg(discarded_.folder()));
    box.setDetailedText(detailsOf(all));
    auto* const restores = box.addButton(unsaved_texts::kRestore, QMessageBox::AcceptRole);
    auto* const discards = box.addButton(unsaved_texts::kDiscard, QMessageBox::DestructiveRole);
    box.setEscapeButton(box.addButton(unsaved_texts::kLater, QMessageBox::RejectRole));
    box.setDefaultButton(restores);
    box.exec();
    if (box.clickedButton() == restores) restore(project, all);
    if (box.clickedButton() == discards) discard(all);
}

void Recovery::discard(const std::vector<Survivor>& all) {
    const auto failed = basic::attempt([&] {
        for (const auto& survivor : all) discarded_.keep(survivor);
    });
    if (failed.Number != 0)
        callbacks_.warn(QString(unsaved_texts::kNotDiscarded).arg(discarded_.folder(), qt(failed.Description)));
}

void Recovery::restore(const std::string& path, const std::vector<Survivor>& all) {
    std::vector<QString> done;
    const auto putAllBack = [&](host::Project& project) {
        for (const auto& survivor : all)
            if (putBackOrWarn(project, survivor.entry)) done.push_back(survivor.path);
    };
    std::shared_ptr<host::Project> project;
    const auto own = std::find_if(all.begin(), all.end(), [](const auto& one) { return isOfProject(one.entry); });
    if (own != all.end()) {
        project = basic::cast<host::Project>(openedFrom(own->entry, putAllBack)).shared();
    } else {
        project = basic::cast<host::Project>(opened(path)).shared();
        if (!project) return; // the reason has been shown
        putAllBack(*project);
    }
    asked_.insert(path); // journals that remain are for another time
    for (const auto& survivor : all) (void)basic::attempt([&] { show(*project, survivor.entry); });
    callbacks_.keep(); // so that there is a journal at any time
    for (const auto& journal : done) QFile::remove(journal);
}

bool Recovery::putBackOrWarn(host::Project& project, const host::JournalEntry& entry) {
    const auto failed = basic::attempt([&] { putBack(project, entry); });
    if (failed.Number != 0)
        callbacks_.warn(QString(unsaved_texts::kNotRestored).arg(qt(entry.component), qt(failed.Description)));
    return failed.Number == 0;
}

/// Null if there is none.
vbide::Ref<vbide::VBProject> Recovery::openAt(const std::string& path) const {
    for (const auto& project : host_.VBProjects()->items())
        if (project->FileName() == path) return project;
    return nullptr;
}

vbide::Ref<vbide::VBProject> Recovery::opened(const std::string& path) {
    if (isNeverSaved(path)) return host_.projects().addNew();
    if (auto open = openAt(path)) return open;
    callbacks_.open(path);
    return openAt(path);
}

/// Opens the project again if it is open: its text decides which components and references it has.
vbide::Ref<vbide::VBProject> Recovery::openedFrom(const host::JournalEntry& entry,
                                                  const std::function<void(host::Project&)>& fill) {
    if (const auto open = entry.file.empty() ? nullptr : openAt(entry.file)) {
        forgetChanges(open);
        host_.VBProjects()->Remove(open);
    }
    return host_.projects().addRestored(entry, fill);
}

} // namespace workbench
