#include "Apps/workbench/marks/breakpoint_file.h"
#include "Apps/workbench/base/state_folder.h"
#include "Apps/workbench/base/text.h"
#include "Host/files/atomic_save.h"
#include <QCryptographicHash>
#include <QDir>
#include <QFile>

namespace workbench {

namespace {

/// The first line, in which a later format will differ.
constexpr auto kHeader = "Fernwick breakpoints 1";
constexpr qsizetype kMostBytes = 1'000'000;
constexpr int kMostLines = 10'000'000;

QString folder() { return stateFolder() + "/breakpoints"; }

QString fileOf(const QString& project) {
    const auto hash = QCryptographicHash::hash(project.toUtf8(), QCryptographicHash::Sha256).toHex().left(32);
    return folder() + "/" + QString::fromLatin1(hash);
}

/// The lines above the breakpoints.
QString headOf(const QString& project) { return QString("%1\n%2\n").arg(kHeader, project); }

} // namespace

Breakpoints readBreakpoints(const QString& project) {
    QFile file(fileOf(project));
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMostBytes) return {};
    const auto whole = QString::fromUtf8(file.readAll());
    const auto head = headOf(project);
    if (!whole.startsWith(head)) return {};
    Breakpoints found;
    for (const auto& line : whole.mid(head.size()).split('\n')) {
        const auto fields = line.split('\t');
        bool isNumber = false;
        const int number = fields.size() < 3 ? 0 : fields[1].toInt(&isNumber);
        if (isNumber && number > 0 && number < kMostLines)
            found[fields[0]].push_back({number - 1, fields.mid(2).join('\t')});
    }
    return found;
}

void writeBreakpoints(const QString& project, const Breakpoints& breakpoints) {
    auto whole = headOf(project);
    bool any = false;
    for (const auto& [component, marks] : breakpoints)
        for (const auto& mark : marks) {
            whole += QString("%1\t%2\t%3\n").arg(component).arg(mark.line + 1).arg(mark.text);
            any = true;
        }
    const auto path = fileOf(project);
    if (!any) {
        QFile::remove(path);
        return;
    }
    QDir().mkpath(folder());
    host::atomicSave(text(path), text(whole));
}

} // namespace workbench
