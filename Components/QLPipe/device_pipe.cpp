#include "Components/QLPipe/device_pipe.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/pipe_texts.h"
#include "Components/QLPipe/base/target_limits.h"
#include "Components/QLPipe/package/installer.h"
#include "Components/QLPipe/package/package_writer.h"
#include "Components/QLPipe/package/project_bundle.h"
#include "Components/QLPipe/package/runtime_bundle.h"
#include "Components/QLPipe/package/setting_checks.h"

namespace qlpipe {

template <class Transfer>
bool DevicePipe::run(Transfer&& transfer) {
    auto& record = *services_.record;
    record.succeeded = false;
    try {
        if (!transfer()) return false;
    } catch (const TransferError& error) {
        if (sink_) sink_->SendError(error.number, error.text);
        return false;
    }
    record.succeeded = true;
    if (sink_) sink_->SendComplete();
    return true;
}

void DevicePipe::needOwnDevice(const std::string& deviceName) const {
    if (!family_.open || !isOfFamily(deviceName, family_.name) || !isSafePart(deviceName))
        throw transferError(kDeviceNotServed, {{"device", deviceName}, {"family", family_.name}});
}

void DevicePipe::warn(PipeWarning warning, MessageValues values) {
    if (sink_) sink_->SendWarning(messageText(warning + kWarningOffset, values), "", 0, warning);
}

std::optional<Bundle> DevicePipe::checkedBundle(const std::string& deviceName,
                                                const basic::Ref<vbide::VBProject>& project, const ProjectFiles& files,
                                                const ApplicationInfo& application) {
    auto listing = listFiles(services_.files, files);
    auto limits = limitsOf(services_.classes, deviceName);
    const auto settings = checkSettings(family_.settings, project, limits, listing);
    checkFiles(limits, listing);
    if (!report(listing, false)) return {}; // the validation has reported the hints
    listing.findings.clear();
    auto bundle = projectBundle(listing, application, deviceName, settings);
    report(listing, true);
    return bundle;
}

void DevicePipe::warnOfSharedCreator(DeviceStorage& device, const Bundle& bundle) {
    if (bundle.creatorId.empty()) return;
    for (const auto& other : applicationsWithCreator(device, bundle.creatorId))
        if (other != bundle.project)
            warn(kCreatorInUse, {{"other", other},
                                 {"device", device.location()},
                                 {"id", bundle.creatorId},
                                 {"setting", family_.name + std::string("CreatorID")}});
}

bool DevicePipe::report(const FileListing& listing, bool withHints) {
    bool good = true;
    for (const auto& finding : listing.findings) {
        good = good && !finding.isError;
        if (sink_ && finding.isError) sink_->SendError(finding.number, finding.text);
        if (sink_ && !finding.isError && withHints) sink_->SendWarning(finding.text, finding.source, 0, finding.number);
    }
    return good;
}

void DevicePipe::send(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                      const Bundle& bundle) {
    Progress progress{sink_, bundle.bytes()};
    progress.setStatus(fillIn(pipe_texts::kConnecting, {{"device", deviceName}}));
    const auto device = family_.open(
        services_, {deviceName, project, [this](PipeWarning number, MessageValues values) { warn(number, values); }});
    const bool lacksRuntime = !bundle.isRuntime && !hasRuntime(*device);
    warnOfSharedCreator(*device, bundle);
    install(*device, bundle, progress);
    for (const auto& file : bundle.files)
        services_.record->installed.push_back(device->location() + "/" + placeOnDevice(bundle, file));
    services_.record->device = deviceName;
    services_.record->location = device->location();
    services_.record->lacksRuntime = lacksRuntime;
    if (lacksRuntime) warn(kRuntimeNotInstalled, {{"device", device->location()}, {"key", deviceName}});
}

bool DevicePipe::SendProject(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                             const ProjectFiles& files, const ApplicationInfo& application) {
    return run([&] {
        needOwnDevice(deviceName);
        const auto bundle = checkedBundle(deviceName, project, files, application);
        if (bundle) send(deviceName, project, *bundle);
        return bundle.has_value();
    });
}

bool DevicePipe::MakePackage(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                             const ProjectFiles& files, const ApplicationInfo& application, std::string& saveLocation) {
    return run([&] {
        needOwnDevice(deviceName);
        const auto bundle = checkedBundle(deviceName, project, files, application);
        if (!bundle) return false;
        const auto& disk = services_.files;
        const auto path = disk.PlaceOnDisk(disk.BuildPath(saveLocation, packageName(*bundle)));
        writePackage(path, *bundle, sink_);
        services_.record->package = saveLocation = path;
        return true;
    });
}

void DevicePipe::SendRuntime(const std::string& deviceName) {
    run([&] {
        needOwnDevice(deviceName);
        send(deviceName, {}, runtimeBundle(services_.installation, family_.name));
        return true;
    });
}

bool DevicePipe::SendPackage(const Package& package, const std::string& deviceName) {
    return run([&] {
        const auto& bundle = package.bundle();
        if (deviceName != bundle.device)
            throw transferError(kPackageOfOtherDevice,
                                {{"package", package.path()}, {"device", bundle.device}, {"other", deviceName}});
        needOwnDevice(deviceName);
        auto listing = listFiles(bundle, package.path());
        auto limits = limitsOf(services_.classes, deviceName);
        checkSettings(bundle, package.path(), limits, listing);
        checkFiles(limits, listing);
        if (!report(listing, true)) return false;
        send(deviceName, {}, bundle);
        return true;
    });
}

bool installPackage(const PipeServices& services, const std::string& path, const std::string& deviceName,
                    IQLPipeEvents& sink) {
    services.record->succeeded = false;
    try {
        const Package package{path};
        const auto& device = package.bundle().device;
        for (const auto& family : pipeFamilies()) {
            if (!family.open || !isOfFamily(device, family.name)) continue;
            DevicePipe pipe{family, services};
            pipe.SetEventSink(sink);
            return pipe.SendPackage(package, deviceName.empty() ? device : deviceName);
        }
        throw transferError(kPackageDeviceUnknown, {{"package", path}, {"device", device}});
    } catch (const TransferError& error) {
        sink.SendError(error.number, error.text);
        return false;
    }
}

} // namespace qlpipe
