#include "Apps/workbench/unsaved/discarded_changes.h"
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/base/text.h"
#include "Basic/runtime_error.h"
#include "Host/files/atomic_save.h"
#include "Host/files/native_path.h"
#include "Host/model/code/component_kind.h"
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace workbench {

namespace {

QString nameOf(const host::JournalEntry& entry) {
    if (!entry.file.empty()) return QFileInfo(qt(entry.file)).fileName();
    if (isOfProject(entry)) return QFileInfo(qt(entry.project)).completeBaseName() + ".vbp";
    return qt(entry.component) + (entry.type == vbide::vbext_ct_StdModule     ? ".bas"
                                  : entry.type == vbide::vbext_ct_ClassModule ? ".cls"
                                                                              : ".frm");
}

/// The whole resource file; nothing if the text refers to no new record.
std::optional<std::string> resourcesOf(const host::JournalEntry& entry) {
    if (entry.records.bytes.empty()) return {};
    std::string onDisk;
    (void)basic::attempt([&] { onDisk = host::readFile(host::folderOf(entry.file) + "/" + entry.records.file).bytes; });
    return host::withRecords(std::move(onDisk), entry.records);
}

} // namespace

DiscardedChanges::DiscardedChanges(const QString& journalBase)
    : folder_(QFileInfo(journalBase).path() + "/discarded") {}

void DiscardedChanges::keep(const Survivor& survivor) const {
    const auto written = QDateTime::fromSecsSinceEpoch(survivor.entry.written).toString("yyyy-MM-dd HHmmss");
    const QDir folder(folder_ + "/" + written);
    folder.mkpath(".");
    const auto name = nameOf(survivor.entry);
    auto path = folder.filePath(name);
    for (int number = 2; QFile::exists(path); ++number) path = folder.filePath(QString("%1 %2").arg(number).arg(name));
    if (const auto resources = resourcesOf(survivor.entry)) host::atomicSave(host::companionOf(text(path)), *resources);
    host::atomicSave(text(path), survivor.entry.bytes);
    QFile::remove(survivor.path);
}

} // namespace workbench
