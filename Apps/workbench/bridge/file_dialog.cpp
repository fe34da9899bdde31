#include "Apps/workbench/bridge/file_dialog.h"
#include "Apps/workbench/base/text.h"
#include "Basic/runtime_error.h"
#include <QFileDialog>
#include <QFileInfo>

namespace workbench {

namespace {

using namespace fernwick;

constexpr int kBufferTooSmall = 20476;

/// "Icons|*.ico;*.bmp|All|*" in the syntax of Qt.
QStringList nameFilters(const std::string& filter) {
    QStringList filters;
    const auto parts = qt(filter).split('|', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        auto description = parts[i];
        const auto patterns = description.indexOf('('); // the description often repeats the patterns
        if (patterns >= 0) description.truncate(patterns);
        filters << QString("%1 (%2)").arg(description.trimmed(), QString(parts[i + 1]).replace(';', ' '));
    }
    return filters;
}

void prepare(QFileDialog& window, const CommonDialog& dialog) {
    const auto filters = nameFilters(dialog.Filter);
    if (!filters.isEmpty()) {
        window.setNameFilters(filters);
        window.selectNameFilter(filters[std::clamp<qsizetype>(dialog.FilterIndex - 1, 0, filters.size() - 1)]);
    }
    if (!dialog.InitDir.empty()) window.setDirectory(qt(dialog.InitDir));
    const bool isOneName = dialog.FileName.find('\0') == std::string::npos; // an earlier choice may have left several
    if (!dialog.FileName.empty() && isOneName) window.selectFile(qt(dialog.FileName));
    window.setDefaultSuffix(qt(dialog.DefaultExt));
}

/// Returns one path, or the folder followed by the names in it.
std::string namesOf(const QStringList& files) {
    if (files.size() == 1) return text(files.front());
    auto names = text(QFileInfo(files.front()).path());
    for (const auto& file : files) names += '\0' + text(QFileInfo(file).fileName());
    return names;
}

} // namespace

void askForFile(CommonDialog& dialog, FileQuestion question, QWidget* parent) {
    const bool saves = question == FileQuestion::Save;
    QFileDialog window(parent, qt(dialog.DialogTitle));
    window.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    window.setOption(QFileDialog::DontConfirmOverwrite);
    const bool several = (dialog.Flags & cdlOFNAllowMultiselect) != 0;
    window.setFileMode(saves ? QFileDialog::AnyFile : several ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    prepare(window, dialog);
    if (window.exec() != QDialog::Accepted || window.selectedFiles().isEmpty()) {
        if (dialog.CancelError) throw basic::RuntimeError(kCancelWasSelected, "Cancel was selected.", "CommonDialog");
        return;
    }
    const auto names = namesOf(window.selectedFiles());
    if (!saves && names.size() > std::size_t(dialog.MaxFileSize))
        throw basic::RuntimeError(kBufferTooSmall, "The buffer for the file names is too small.", "CommonDialog");
    dialog.FileName = names;
}

} // namespace workbench
