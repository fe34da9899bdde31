#include "Apps/workbench/unsaved/outside_changes.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/title.h"
#include "Apps/workbench/project/project_saving.h"
#include "Apps/workbench/unsaved/unsaved_texts.h"
#include "Host/files/atomic_save.h"
#include "Host/model/component.h"
#include "Host/model/project.h"
#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>

namespace workbench {

namespace {

/// Other programs write a file in several steps, and many files in a row.
constexpr int kMillisecondsOfQuiet = 300;

/// The digest of a file that was removed.
constexpr std::uint64_t kGone = 0;

bool isReadHere(const vbide::Ref<vbide::VBProject>& project) { return !project->FileName().empty(); }

} // namespace

OutsideChanges::OutsideChanges(host::Host& host, QWidget& window, Callbacks callbacks)
    : host_(host), window_(window), callbacks_(std::move(callbacks)) {
    soon_.setSingleShot(true);
    soon_.setInterval(kMillisecondsOfQuiet);
    connect(&soon_, &QTimer::timeout, this, [this] { check(); });
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, [this] { soon_.start(); });
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this] { soon_.start(); });
    window.installEventFilter(this);
    const auto soon = [this](const auto&...) { soon_.start(); };
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemAdded.connect(soon));
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemRemoved.connect(soon));
    watches_.push_back(host.Events()->FileControlEvents(nullptr)->AfterWriteFile.connect(soon));
    watches_.push_back(host.Events()->FileControlEvents(nullptr)->AfterAddFile.connect(soon));
}

bool OutsideChanges::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate) soon_.start();
    return QObject::eventFilter(watched, event);
}

// ---- noticing -------------------------------------------------------------------------------------------------------

/// Watches files for writes and their folders for files that are replaced.
void OutsideChanges::watchFiles() {
    QSet<QString> wanted;
    const auto add = [&wanted](const std::string& path) {
        if (path.empty()) return;
        const QFileInfo file(qt(path));
        wanted << file.path();
        if (file.exists()) wanted << file.filePath();
    };
    for (const auto& project : host_.VBProjects()->items()) {
        add(project->FileName());
        for (const auto& component : project->VBComponents()->items()) add(component->FileNames(1));
    }
    const auto watched = watcher_.files() + watcher_.directories();
    const auto there = QSet<QString>(watched.begin(), watched.end());
    if (const auto gone = (there - wanted).values(); !gone.isEmpty()) watcher_.removePaths(gone);
    if (const auto more = (wanted - there).values(); !more.isEmpty()) watcher_.addPaths(more);
}

std::vector<OutsideChange> OutsideChanges::changes() const {
    std::vector<OutsideChange> all;
    for (const auto& project : host_.VBProjects()->items())
        (void)basic::attempt([&] { lookAt(project, all); }); // it may be closing
    return all;
}

void OutsideChanges::lookAt(const vbide::Ref<vbide::VBProject>& project, std::vector<OutsideChange>& all) const {
    const auto own = basic::cast<host::Project>(project).shared();
    if (!own || !isReadHere(project)) return;
    look(
        {project, nullptr, project->FileName(), {}, isUnsaved(project)}, own->stamp(),
        [&own] { return own->file().bytes(); }, all);
    for (const auto& component : own->components().list()) {
        if (component->path().empty()) continue;
        look(
            {project, component, component->path(), {}, component->IsDirty()}, component->stamp(),
            [&component] { return component->source().bytes(); }, all);
    }
}

void OutsideChanges::look(OutsideChange change, const std::optional<host::FileStamp>& stamp,
                          const std::function<std::string()>& bytesHere, std::vector<OutsideChange>& all) const {
    if (!stamp) return;
    const bool gone = !QFileInfo::exists(qt(change.path));
    std::optional<host::FileStamp> now;
    // a file that cannot be read now is checked again when it changes
    if (!gone) (void)basic::attempt([&] { now = host::changedSince(change.path, *stamp); });
    const bool sameAsHere = now && now->digest == host::digestOf(bytesHere());
    if (!gone && (!now || sameAsHere)) return;
    if (now) change.digest = now->digest;
    const auto known = known_.find(change.path);
    if (known == known_.end() || known->second != change.digest.value_or(kGone)) all.push_back(std::move(change));
}

// ---- asking ---------------------------------------------------------------------------------------------------------

void OutsideChanges::check() {
    if (QApplication::activeModalWidget()) return soon_.start(); // a build may still be writing its files
    (void)basic::attempt([this] { watchFiles(); });
    if (QGuiApplication::applicationState() != Qt::ApplicationActive)
        return; // the user is asked on return to the window
    const auto all = changes();
    if (all.empty()) return;
    for (const auto& change : all) known_[change.path] = change.digest.value_or(kGone);
    const auto wanted = askWhatToReload(all, &window_);
    std::set<std::shared_ptr<vbide::VBProject>> reopened; // reopening includes its components
    for (const auto i : wanted)
        if (!all[i].component) reopened.insert(all[i].project.shared());
    for (std::size_t i = 0; i < all.size(); ++i)
        if (!all[i].component || reopened.count(all[i].project.shared()) == 0) carryOut(all[i], wanted.count(i) != 0);
    callbacks_.refresh();
    soon_.start(); // for changes while the question was open
}

void OutsideChanges::settle() {
    for (const auto& change : changes()) known_[change.path] = change.digest.value_or(kGone);
}

void OutsideChanges::carryOut(const OutsideChange& change, bool reload) {
    const auto failed = basic::attempt([&] {
        if (reload) return reread(change);
        // the editor and the file differ, so the text must be saved before a compile
        if (change.component)
            change.component->IsDirty(true);
        else
            change.project->IsDirty(true);
    });
    if (failed.Number != 0 && reload)
        callbacks_.warn(QString(unsaved_texts::kNotReloaded).arg(qt(change.path), qt(failed.Description)));
}

void OutsideChanges::reread(const OutsideChange& change) {
    known_.erase(change.path);
    if (change.component)
        basic::cast<host::Component>(change.component)->reread();
    else
        callbacks_.reopen(change.project);
}

bool mayReplaceChanged(const std::string& path) {
    QMessageBox box(QMessageBox::Warning, kTitle, QString(unsaved_texts::kReplace).arg(qt(path)), QMessageBox::NoButton,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(unsaved_texts::kWhatReplaces);
    auto* const replace = box.addButton(unsaved_texts::kReplaceIt, QMessageBox::AcceptRole);
    auto* const leave = box.addButton(unsaved_texts::kLeaveIt, QMessageBox::RejectRole);
    box.setDefaultButton(leave);
    box.setEscapeButton(leave);
    box.exec();
    return box.clickedButton() == replace;
}

} // namespace workbench
