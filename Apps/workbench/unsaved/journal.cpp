#include "Apps/workbench/unsaved/journal.h"
#include "Apps/workbench/base/text.h"
#include "Host/files/atomic_save.h"
#include "Host/model/component.h"
#include "Host/model/component_designer.h"
#include "Host/model/project.h"
#include <QDateTime>
#include <QEvent>
#include <QFile>
#include <algorithm>
#include <set>

namespace workbench {

namespace {

constexpr int kMillisecondsOfTyping = 1000;

/// The text of a project that was never saved is nowhere else, nor are its components that the user left unchanged.
bool isKeptWhole(const host::Project& project) {
    const auto& all = project.components().list();
    return project.FileName().empty() &&
           (project.IsDirty() || std::any_of(all.begin(), all.end(), [](const auto& one) { return one->IsDirty(); }));
}

bool isOwnTextKept(const host::Project& project) { return project.IsDirty() || isKeptWhole(project); }

host::JournalEntry entryOf(const host::Project& project) {
    host::JournalEntry entry;
    entry.file = project.FileName();
    entry.project = entry.file.empty() ? project.Name() : entry.file;
    entry.base = project.stamp();
    entry.bytes = project.file().bytes();
    entry.written = QDateTime::currentSecsSinceEpoch();
    return entry;
}

host::JournalEntry entryOf(const host::Project& project, host::Component& component) {
    auto entry = entryOf(project);
    entry.component = component.Name();
    entry.type = component.Type();
    entry.file = component.path();
    entry.base = component.stamp();
    entry.bytes = component.source().bytes();
    if (component.hasDesigner()) entry.records = component.designer().resources().unsaved();
    return entry;
}

void addUnsaved(const vbide::Ref<vbide::VBProject>& project, std::set<std::shared_ptr<void>>& unsaved) {
    const auto own = basic::cast<host::Project>(project).shared();
    if (!own) return;
    if (isOwnTextKept(*own)) unsaved.insert(own);
    const bool isWhole = isKeptWhole(*own);
    for (const auto& component : own->components().list())
        if (isWhole || component->IsDirty()) unsaved.insert(component);
}

} // namespace

Journal::Journal(host::Host& host, QWidget& window, QString base, Failed failed)
    : host_(host), base_(std::move(base)), failed_(std::move(failed)) {
    soon_.setSingleShot(true);
    soon_.setInterval(kMillisecondsOfTyping);
    connect(&soon_, &QTimer::timeout, this, [this] { write(); });
    tidySoon_.setSingleShot(true);
    tidySoon_.setInterval(0); // the host clears the dirty mark after it raises the event
    connect(&tidySoon_, &QTimer::timeout, this, [this] { dropSaved(); });
    window.installEventFilter(this);

    const auto soon = [this](const auto&) {
        if (!soon_.isActive()) soon_.start(); // typing more does not delay it
    };
    watches_.push_back(host.panes.codeChanged.connect(soon));
    watches_.push_back(host.panes.designChanged.connect(soon));
    watches_.push_back(host.projectEdited.connect(soon));
    const auto tidy = [this](const auto&...) { tidySoon_.start(); };
    watches_.push_back(host.Events()->FileControlEvents(nullptr)->AfterWriteFile.connect(tidy));
    watches_.push_back(host.Events()->FileControlEvents(nullptr)->AfterRemoveFile.connect(tidy));
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemRemoved.connect(tidy));
}

Journal::~Journal() { dropSaved(); }

bool Journal::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowDeactivate) write();
    return QObject::eventFilter(watched, event);
}

void Journal::write() {
    soon_.stop();
    dropSaved();
    const auto failed = basic::attempt([this] {
        for (const auto& project : host_.VBProjects()->items()) keepProject(project);
    });
    // before the error is shown, as its box blocks the window, which writes again
    const bool wasFailing = std::exchange(failing_, failed.Number != 0);
    if (failing_ && !wasFailing) failed_(qt(failed.Description));
}

void Journal::keepProject(const vbide::Ref<vbide::VBProject>& project) {
    const auto own = basic::cast<host::Project>(project).shared();
    if (!own) return;
    if (isOwnTextKept(*own)) keep(own, entryOf(*own));
    for (const auto& component : own->components().list())
        if (component->IsDirty() || isKeptWhole(*own)) keep(component, entryOf(*own, *component));
}

void Journal::keep(const std::shared_ptr<void>& what, host::JournalEntry entry) {
    const auto digest = host::digestOf(entry.bytes); // a new record changes the text too
    const auto known = kept_.find(what);
    if (known != kept_.end() && known->second.digest == digest) return;
    if (!folder_) folder_ = JournalFolder::create(base_);
    const auto path =
        known != kept_.end() ? known->second.path : *folder_ / QString("%1.journal").arg(++count_, 4, 10, QChar('0'));
    host::atomicSave(text(path), host::encodeJournal(entry));
    kept_[what] = {path, digest};
}

void Journal::dropSaved() {
    std::set<std::shared_ptr<void>> unsaved;
    (void)basic::attempt([&] {
        for (const auto& project : host_.VBProjects()->items()) addUnsaved(project, unsaved);
    });
    std::erase_if(kept_, [&unsaved](const auto& kept) {
        const bool drops = unsaved.count(kept.first) == 0;
        if (drops) QFile::remove(kept.second.path);
        return drops;
    });
}

} // namespace workbench
