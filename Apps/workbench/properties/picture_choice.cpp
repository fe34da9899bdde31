#include "Apps/workbench/properties/picture_choice.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/picture_formats.h"
#include "Basic/runtime_error.h"
#include "Host/files/text_file.h"
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QSettings>

namespace workbench {

namespace {

constexpr int kPreviewSize = 160;
constexpr QSize kDialogSize{800, 460};
constexpr auto kFolderKey = "properties/pictureFolder";

/// Shows why a file without a preview has none.
void preview(QLabel& label, const QString& property, const QString& path) {
    label.clear();
    if (!QFileInfo(path).isFile()) return;
    (void)basic::attempt([&] { // a file that cannot be read is reported when it is chosen
        const auto image = host::readFile(text(path)).bytes;
        const auto refusal = refusalOfPicture(property, QFileInfo(path).fileName(), image);
        if (!refusal.isEmpty()) return label.setText(refusal);
        const auto picture = thumbnail(image, {kPreviewSize, kPreviewSize});
        if (picture.isNull()) return label.setText("This format has no preview.");
        label.setPixmap(picture);
    });
}

QLabel* addPreview(QFileDialog& dialog) {
    auto* const label = new QLabel;
    label->setObjectName("preview");
    label->setAccessibleName("Preview");
    label->setAlignment(Qt::AlignCenter);
    label->setFrameShape(QFrame::StyledPanel); // an empty one shows where the picture will be
    label->setFixedWidth(kPreviewSize + 2 * label->frameWidth());
    label->setMinimumHeight(kPreviewSize);
    label->setWordWrap(true);
    if (auto* grid = dynamic_cast<QGridLayout*>(dialog.layout())) grid->addWidget(label, 1, grid->columnCount());
    return label;
}

} // namespace

std::optional<std::string> askForPicture(const QString& property, QWidget* parent) {
    QSettings settings;
    QFileDialog dialog(parent, "Load Picture", settings.value(kFolderKey).toString(), pictureFilter(property));
    dialog.setOption(QFileDialog::DontUseNativeDialog); // native ones have no preview
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.resize(kDialogSize);
    auto* const label = addPreview(dialog);
    QObject::connect(&dialog, &QFileDialog::currentChanged, label,
                     [label, property](const QString& path) { preview(*label, property, path); });
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    const auto path = dialog.selectedFiles().front();
    settings.setValue(kFolderKey, QFileInfo(path).path());
    auto image = host::readFile(text(path)).bytes;
    if (const auto refusal = refusalOfPicture(property, QFileInfo(path).fileName(), image); !refusal.isEmpty())
        throw basic::RuntimeError(basic::kInvalidPicture, text(refusal));
    return image;
}

} // namespace workbench
