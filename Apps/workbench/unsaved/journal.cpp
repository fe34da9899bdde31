#include "Apps/workbench/unsaved/journal.h"
#include "Apps/workbench/base/text.h"
#include "Host/files/atomic_save.h"
#include "Host/files/journal_file.h"
#include "Host/model/component.h"
#include <QDateTime>
#include <QEvent>
#include <QFile>

namespace workbench {

namespace {
constexpr int kMillisecondsOfTyping = 1000;
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
        for (const auto& project : host_.VBProjects()->items())
            for (const auto& component : project->VBComponents()->items())
                if (component->IsDirty()) keep(project, component);
    });
    // before the error is shown, as its box blocks the window, which writes again
    const bool wasFailing = std::exchange(failing_, failed.Number != 0);
    if (failing_ && !wasFailing) failed_(qt(failed.Description));
}

void Journal::keep(const vbide::Ref<vbide::VBProject>& project, const vbide::Ref<vbide::VBComponent>& component) {
    const auto own = basic::cast<host::Component>(component).shared();
    if (!own) return;
    host::JournalEntry entry;
    entry.bytes = own->source().bytes();
    const auto digest = host::digestOf(entry.bytes);
    const auto known = kept_.find(own);
    if (known != kept_.end() && known->second.digest == digest) return;

    entry.project = project->FileName();
    entry.component = own->Name();
    entry.type = own->Type();
    entry.file = own->path();
    entry.base = own->stamp();
    entry.written = QDateTime::currentSecsSinceEpoch();
    if (!folder_) folder_ = JournalFolder::create(base_);
    const auto path =
        known != kept_.end() ? known->second.path : *folder_ / QString("%1.journal").arg(++count_, 4, 10, QChar('0'));
    host::atomicSave(text(path), host::encodeJournal(entry));
    kept_[own] = {path, digest};
}

void Journal::dropSaved() {
    for (auto at = kept_.begin(); at != kept_.end();) {
        bool dirty = false;
        (void)basic::attempt([&] { dirty = at->first->IsDirty(); }); // a removed component is discarded
        if (!dirty) QFile::remove(at->second.path);
        at = dirty ? std::next(at) : kept_.erase(at);
    }
}

} // namespace workbench
