#include "Apps/workbench/window/transfer_notice.h"
#include "Apps/workbench/base/text.h"
#include <QFileInfo>
#include <utility>

namespace workbench {

namespace {

constexpr auto kSent = "The application was sent to %1.", kRuntimeSent = "Tamarik was installed on %1.";
constexpr auto kLacksRuntime = "The application was sent to %1. It needs Tamarik, which is not installed there.";
constexpr auto kPackaged = "The package is %1";
constexpr auto kShowFolder = "Show &Folder", kInstallTamarik = "&Install Tamarik";

} // namespace

void TransferNotice::formClosed(const fernwick::Form& form) {
    const auto& addIn = addIns_.current();
    const bool isRuntime = &form == &addIn.sendRuntime, isProject = &form == &addIn.sendToDevice;
    if (&form == &addIn.compile) return bar_.hide(); // a notice of an older transfer
    if (!isRuntime && !isProject) return;
    const auto record = std::exchange(machine_.transfers(), {});
    if (!record.succeeded) return;
    if (isRuntime) return bar_.showText(QString(kRuntimeSent).arg(nameOf(record.device)));
    sent(record);
}

void TransferNotice::sent(const qlpipe::TransferRecord& record) {
    if (!record.package.empty())
        return bar_.showText(QString(kPackaged).arg(qt(record.package)),
                             {showFolder(QFileInfo(qt(record.package)).path())});
    std::vector<NoticeBar::Offer> offers;
    if (record.lacksRuntime) offers.push_back(installRuntime(record.device));
    if (QFileInfo(qt(record.location)).isDir()) offers.push_back(showFolder(qt(record.location)));
    bar_.showText(QString(record.lacksRuntime ? kLacksRuntime : kSent).arg(nameOf(record.device)), offers);
}

NoticeBar::Offer TransferNotice::showFolder(const QString& folder) {
    return {kShowFolder, [this, folder] { run_([&] { machine_.platform().shell.Open(text(folder)); }); }};
}

NoticeBar::Offer TransferNotice::installRuntime(const std::string& device) {
    return {kInstallTamarik,
            [this, device] { run_([&] { addIns_.current().sendRuntime.SendRuntimeToDevice(device); }); }};
}

QString TransferNotice::nameOf(const std::string& device) {
    auto& devices = addIns_.current().devices;
    return qt(devices.StripAcceleratorInfo(devices.GetDeviceName(device)));
}

} // namespace workbench
