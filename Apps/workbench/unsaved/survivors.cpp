#include "Apps/workbench/unsaved/survivors.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/line_differences.h"
#include "Apps/workbench/unsaved/unsaved_texts.h"
#include "Host/files/project_code_page.h"
#include "Host/model/host.h"
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <algorithm>
#include <set>

namespace workbench {

namespace {

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

QString shownName(const host::JournalEntry& entry) {
    if (isOfProject(entry)) return unsaved_texts::kProjectsOwn;
    const auto name = qt(entry.component);
    return entry.file.empty() ? name : QString("%1 (%2)").arg(name, QFileInfo(qt(entry.file)).fileName());
}

/// The text of an entry's file, decoded.
QString decoded(const host::JournalEntry& entry, const std::string& bytes) {
    const auto folder = text(QFileInfo(qt(entry.file)).path());
    const auto detected =
        isOfProject(entry) ? host::codePageOfProject(bytes, folder, {}) : host::codePageOfSource(bytes);
    return qt(detected.page.decode(bytes));
}

} // namespace

std::vector<Survivor> survivorsIn(const QString& base,
                                  const std::function<void(const QString& path, const QString& why)>& damaged) {
    std::vector<Survivor> all;
    for (const auto& folder : JournalFolder::leftBehind(base))
        for (const auto& path : folder->journals()) {
            Survivor survivor{folder, path, {}, false};
            const auto failed =
                basic::attempt([&] { survivor.entry = host::decodeJournal(host::readFile(text(path)).bytes); });
            if (failed.Number != 0) {
                damaged(path, qt(failed.Description));
            } else if (equalsFile(survivor.entry)) {
                QFile::remove(path); // saved, but the program ended before it removed the journal
            } else {
                survivor.changedOnDisk = isChangedOnDisk(survivor.entry);
                all.push_back(std::move(survivor));
            }
        }
    return all;
}

bool isOfProject(const host::JournalEntry& entry) { return entry.component.empty(); }

bool isNeverSaved(const std::string& project) { return !project.starts_with('/'); }

QString lineOf(const Survivor& survivor) {
    const auto file = qt(survivor.entry.file);
    const auto name = shownName(survivor.entry);
    if (survivor.changedOnDisk) return QString(unsaved_texts::kChangedOnDisk).arg(name);
    if (!file.isEmpty() && !QFileInfo::exists(file)) return QString(unsaved_texts::kGoneFromDisk).arg(name);
    return name;
}

QString detailsOf(const std::vector<Survivor>& all) {
    QStringList details;
    for (const auto& [folder, path, entry, changed] : all) {
        std::string onDisk;
        (void)basic::attempt([&] { onDisk = host::readFile(entry.file).bytes; });
        details << QString(unsaved_texts::kDifferences).arg(entry.file.empty() ? shownName(entry) : qt(entry.file));
        details << differencesOf(decoded(entry, onDisk), decoded(entry, entry.bytes)) << "";
    }
    return details.join('\n');
}

QString headlineOf(const std::string& project, const std::vector<Survivor>& all) {
    std::int64_t last = 0;
    for (const auto& survivor : all) last = std::max(last, survivor.entry.written);
    const auto when = QLocale().toString(QDateTime::fromSecsSinceEpoch(last), QLocale::ShortFormat);
    const auto name = isNeverSaved(project) ? QString(unsaved_texts::kNeverSaved) : QFileInfo(qt(project)).fileName();
    return all.size() == 1 ? QString(unsaved_texts::kOneRecovered).arg(name, when)
                           : QString(unsaved_texts::kRecovered).arg(name, when).arg(all.size());
}

std::vector<Survivor> newestOf(std::vector<Survivor> all) {
    std::stable_sort(all.begin(), all.end(),
                     [](const auto& a, const auto& b) { return a.entry.written > b.entry.written; });
    std::set<std::pair<std::string, std::string>> seen;
    std::erase_if(all, [&seen](const auto& one) {
        return !seen.insert({one.entry.file, one.entry.file.empty() ? one.entry.component : ""}).second;
    });
    return all;
}

} // namespace workbench
