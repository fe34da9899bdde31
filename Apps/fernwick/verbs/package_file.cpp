#include "Apps/fernwick/verbs/package_file.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/devices/device_runs.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/run/interruption.h"
#include "Basic/printable.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/package/package.h"
#include "Components/QLPipe/pipe_family.h"
#include <filesystem>

namespace cli {

namespace {

/// Shows a pipe's progress and collects its messages.
class PipeListener final : public qlpipe::IQLPipeEvents {
public:
    explicit PipeListener(Console& console) : console_(console) {}

    void SendProgress(const std::string& status, std::int32_t percent) override {
        console_.progress(float(percent), status);
        checkInterrupt();
    }
    void SendComplete() override { console_.endProgress(); }
    void SendError(std::int32_t errorNumber, const std::string& message) override { keep(true, errorNumber, message); }
    void SendWarning(const std::string& message, const std::string&, std::int32_t,
                     std::int32_t warningNumber) override {
        keep(false, warningNumber + qlpipe::kWarningOffset, message);
    }

    std::vector<Message> messages;

private:
    void keep(bool isError, int number, const std::string& text) {
        Message message;
        message.isError = isError;
        message.number = number;
        message.text = text;
        messages.push_back(std::move(message));
    }

    Console& console_;
};

std::string packageOperand(const Options& options) {
    if (options.project.empty()) throw Refusal(kWrongUse, "no package given; name its .qlpkg file");
    std::error_code ignored;
    if (!std::filesystem::exists(options.project, ignored))
        throw Refusal(kWrongUse, fmt::format("{}: file not found", options.project));
    return std::filesystem::absolute(options.project, ignored).lexically_normal().string();
}

/// Returns what `read` returns. Refusal 1 for a damaged package.
template <class Read>
auto readPackage(const std::string& path, Read&& read) {
    try {
        return read(qlpipe::Package{path});
    } catch (const qlpipe::TransferError& error) {
        throw Refusal(kProjectErrors, fmt::format("{}: error {}: {}", path, error.number, error.text));
    }
}

/// The settings that the project gave its application; those that it did not set are left out.
Json jsonOfSettings(const qlpipe::Bundle& bundle) {
    Json json = Json::object();
    if (!bundle.creatorId.empty()) json["creatorId"] = bundle.creatorId;
    if (bundle.memoryLimit) json["memoryLimit"] = *bundle.memoryLimit;
    if (!bundle.orientation.empty()) json["orientation"] = bundle.orientation;
    if (!bundle.arguments.empty()) json["arguments"] = bundle.arguments;
    return json;
}

Json jsonOfBundle(const std::string& path, const qlpipe::Bundle& bundle) {
    auto json = jsonResult("package");
    json.update({{"package", path},
                 {"project", bundle.project},
                 {"displayName", bundle.displayName},
                 {"version", bundle.version},
                 {"device", bundle.device},
                 {"references", bundle.references}});
    json.update(jsonOfSettings(bundle));
    json["files"] = Json::array();
    for (const auto& file : bundle.files)
        json["files"].push_back({{"name", file.place}, {"bytes", file.size}, {"sha256", file.sha256}});
    return json;
}

/// The texts of a package are not trusted: a line feed could imitate a line of this output.
void printBundle(const qlpipe::Bundle& bundle, Console& console) {
    using basic::printable;
    console.out(fmt::format("{} {} for {}\n", printable(bundle.displayName), printable(bundle.version),
                            printable(bundle.device)));
    const auto settings = jsonOfSettings(bundle);
    for (const auto& [name, value] : settings.items())
        console.out(
            fmt::format("  {}: {}\n", name, printable(value.is_string() ? value.get<std::string>() : value.dump())));
    std::size_t width = 0;
    for (const auto& file : bundle.files) width = std::max(width, file.place.size());
    for (const auto& file : bundle.files)
        console.out(fmt::format("  {:<{}}  {:>10}\n", printable(file.place), width, file.size));
    for (const auto& reference : bundle.references) console.out(fmt::format("  needs {}\n", printable(reference)));
}

std::vector<Message> sendPackage(Session& session, const std::string& path, const std::string& device,
                                 Console& console) {
    PipeListener listener{console};
    qlpipe::installPackage(session.machine().pipeServices(), path, device, listener);
    console.endProgress();
    return listener.messages;
}

} // namespace

bool isPackageFile(const std::string& operand) { return apps::hasExtension(operand, ".qlpkg"); }

int listPackage(const Options& options, Console& console) {
    const auto path = packageOperand(options);
    const auto bundle = readPackage(path, [](const qlpipe::Package& package) { return package.bundle(); });
    if (options.format == Format::Json)
        console.out(dumpJson(jsonOfBundle(path, bundle)));
    else
        printBundle(bundle, console);
    return kGood;
}

int verifyPackage(const Options& options, Console& console) {
    const auto path = packageOperand(options);
    const auto bundle = readPackage(path, [](const qlpipe::Package& package) {
        package.verify(checkInterrupt);
        return package.bundle();
    });
    if (options.format == Format::Json)
        console.out(dumpJson(jsonOfBundle(path, bundle)));
    else
        console.out(fmt::format("{}: {}, all matching the manifest\n", basic::printable(options.project),
                                plural(bundle.files.size(), "file")));
    return kGood;
}

int installPackage(const Options& options, Console& console) {
    const auto path = packageOperand(options);
    const auto own = readPackage(path, [](const qlpipe::Package& package) { return package.bundle().device; });
    Session session{options, console};
    session.connect();
    const auto devices = devicesToServe(session, options, own);

    Report report;
    report.verb = options.verb;
    report.project = path;
    report.devices = serveDevices(session, devices, console, [&](const std::string& device) {
        return sendPackage(session, path, device, console);
    });
    report.exitStatus = statusOf(report.devices, options.myDevices);
    session.closeUnsaved();
    printOutcomes(report, "sent", options.myDevices, options, console);
    return report.exitStatus;
}

} // namespace cli
