#include "Apps/workbench/unsaved/recovery.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/title.h"
#include "Apps/workbench/code/line_differences.h"
#include "Apps/workbench/unsaved/unsaved_texts.h"
#include "Host/files/encoding.h"
#include "Host/model/component.h"
#include "Host/model/components.h"
#include "Host/model/project.h"
#include "Host/model/projects.h"
#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kMillisecondsBetweenLooks = 200;

bool equalsFile(const host::JournalEntry& entry) {
    bool equal = false;
    (void)basic::attempt([&] { equal = !entry.file.empty() && host::readFile(entry.file).bytes == entry.bytes; });
    return equal;
}

bool isChangedOnDisk(const host::JournalEntry& entry) {
    bool changed = false;
    (void)basic::attempt(
        [&] { changed = entry.base && host::readFile(entry.file).stamp.digest != entry.base->digest; });
    return changed;
}

QString lineOf(const Survivor& survivor) {
    const auto& entry = survivor.entry;
    const auto file = qt(entry.file);
    const auto name =
        file.isEmpty() ? qt(entry.component) : QString("%1 (%2)").arg(qt(entry.component), QFileInfo(file).fileName());
    if (survivor.changedOnDisk) return QString(unsaved_texts::kChangedOnDisk).arg(name);
    if (!file.isEmpty() && !QFileInfo::exists(file)) return QString(unsaved_texts::kGoneFromDisk).arg(name);
    return name;
}

/// What differs from the file on disk, for a look before the choice.
QString detailsOf(const std::vector<Survivor>& all) {
    QStringList details;
    for (const auto& [folder, path, entry, changed] : all) {
        std::string onDisk;
        (void)basic::attempt([&] { onDisk = host::readFile(entry.file).bytes; });
        const auto shown = [](const std::string& bytes) {
            return qt(host::codePageOf(bytes, basic::CodePage::windows1252()).decode(bytes));
        };
        details << QString(unsaved_texts::kDifferences).arg(qt(entry.file.empty() ? entry.component : entry.file));
        details << differencesOf(shown(onDisk), shown(entry.bytes)) << "";
    }
    return details.join('\n');
}

QString headlineOf(const std::string& project, const std::vector<Survivor>& all) {
    std::int64_t last = 0;
    for (const auto& survivor : all) last = std::max(last, survivor.entry.written);
    const auto when = QLocale().toString(QDateTime::fromSecsSinceEpoch(last), QLocale::ShortFormat);
    const auto name = project.empty() ? QString(unsaved_texts::kNeverSaved) : QFileInfo(qt(project)).fileName();
    return all.size() == 1 ? QString(unsaved_texts::kOneRecovered).arg(name, when)
                           : QString(unsaved_texts::kRecovered).arg(name, when).arg(all.size());
}

/// The newest text of each component; the older ones wait for another time.
std::vector<Survivor> newestOf(std::vector<Survivor> all) {
    std::stable_sort(all.begin(), all.end(),
                     [](const auto& a, const auto& b) { return a.entry.written > b.entry.written; });
    std::set<std::pair<std::string, std::string>> seen;
    std::erase_if(all, [&seen](const auto& one) {
        return !seen.insert({one.entry.file, one.entry.file.empty() ? one.entry.component : ""}).second;
    });
    return all;
}

/// The component that the text belongs to; null when the project has it no more.
std::shared_ptr<host::Component> ownerOf(host::Project& project, const host::JournalEntry& entry) {
    for (const auto& component : project.components().list()) {
        const bool same = entry.file.empty() ? component->path().empty() && component->Name() == entry.component
                                             : component->path() == entry.file;
        if (same) return component;
    }
    return nullptr;
}

void putBack(host::Project& project, const host::JournalEntry& entry) {
    auto component = ownerOf(project, entry);
    if (component)
        component->restore(entry.bytes, entry.base);
    else
        component =
            project.components().addSource(vbide::vbext_ComponentType(entry.type), entry.component, entry.bytes);
    component->CodeModule()->CodePane()->Show();
}

} // namespace

Recovery::Recovery(host::Host& host, QWidget& window, QString base, Callbacks callbacks)
    : host_(host), window_(window), base_(std::move(base)), callbacks_(std::move(callbacks)) {
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
    for (auto& survivor : survivors()) byProject[survivor.entry.project].push_back(std::move(survivor));
    for (auto& [project, all] : byProject)
        if (asked_.insert(project).second) offer(project, newestOf(std::move(all)));
}

std::vector<Survivor> Recovery::survivors() {
    std::vector<Survivor> all;
    for (const auto& folder : JournalFolder::leftBehind(base_))
        for (const auto& path : folder->journals()) {
            Survivor survivor{folder, path, {}, false};
            const auto failed =
                basic::attempt([&] { survivor.entry = host::decodeJournal(host::readFile(text(path)).bytes); });
            if (failed.Number != 0) {
                setAside(path, qt(failed.Description));
            } else if (equalsFile(survivor.entry)) {
                QFile::remove(path); // it was saved, and the program ended before it could say so
            } else {
                survivor.changedOnDisk = isChangedOnDisk(survivor.entry);
                all.push_back(std::move(survivor));
            }
        }
    return all;
}

/// Told once: it is no journal any more, and it is not lost.
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
    box.setInformativeText(lines.join('\n') + "\n\n" + unsaved_texts::kWhatRestoreDoes);
    box.setDetailedText(detailsOf(all));
    auto* const restores = box.addButton(unsaved_texts::kRestore, QMessageBox::AcceptRole);
    auto* const discards = box.addButton(unsaved_texts::kDiscard, QMessageBox::DestructiveRole);
    box.setEscapeButton(box.addButton(unsaved_texts::kLater, QMessageBox::RejectRole));
    box.setDefaultButton(restores);
    box.exec();
    if (box.clickedButton() == restores) restore(project, all);
    if (box.clickedButton() == discards)
        for (const auto& survivor : all) QFile::remove(survivor.path);
}

void Recovery::restore(const std::string& path, const std::vector<Survivor>& all) {
    const auto project = basic::cast<host::Project>(opened(path)).shared();
    if (!project) return; // why, the user was told
    std::vector<QString> done;
    for (const auto& survivor : all) {
        const auto failed = basic::attempt([&] { putBack(*project, survivor.entry); });
        if (failed.Number == 0)
            done.push_back(survivor.path);
        else
            callbacks_.warn(
                QString(unsaved_texts::kNotRestored).arg(qt(survivor.entry.component), qt(failed.Description)));
    }
    callbacks_.keep(); // at no time without a journal
    for (const auto& journal : done) QFile::remove(journal);
}

vbide::Ref<vbide::VBProject> Recovery::opened(const std::string& path) {
    const auto find = [&]() -> vbide::Ref<vbide::VBProject> {
        for (const auto& project : host_.VBProjects()->items())
            if (project->FileName() == path) return project;
        return nullptr;
    };
    if (path.empty()) return host_.projects().addNew();
    if (auto open = find()) return open;
    callbacks_.open(path);
    asked_.insert(path);
    return find();
}

} // namespace workbench
