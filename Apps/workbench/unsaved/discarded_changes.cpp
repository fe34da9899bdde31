#include "Apps/workbench/unsaved/discarded_changes.h"
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/base/text.h"
#include "Host/files/atomic_save.h"
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
    host::atomicSave(text(path), survivor.entry.bytes);
    QFile::remove(survivor.path);
}

} // namespace workbench
