#include "Components/QLPipe/package/setting_checks.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include <algorithm>

namespace qlpipe {

namespace {

void lowerMemory(std::optional<std::int64_t> bytes, TargetLimits& limits) {
    if (bytes) limits.heapBytes = std::min(*bytes, limits.heapBytes.value_or(*bytes));
}

Finding refusal(const PipeSettings& settings, const PipeSetting& row, const std::string& value,
                const std::string& reason) {
    return {
        true,
        kSettingRefused,
        messageText(kSettingRefused,
                    {{"value", shortened(value)}, {"setting", row.name}, {"reason", reason}, {"page", settings.page}}),
        {}};
}

} // namespace

ApplicationSettings checkSettings(const PipeSettings& settings, const basic::Ref<vbide::VBProject>& project,
                                  TargetLimits& limits, FileListing& listing) {
    const auto values = readProjectValues(settings, project);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto& row = settings.rows[i];
        if (!row.application) continue;
        if (const auto reason = problemOf(row, values[i], limits); !reason.empty())
            listing.findings.push_back(refusal(settings, row, values[i], reason));
    }
    auto application = readApplicationSettings(settings, project);
    lowerMemory(memoryLimitBytes(application.MemoryLimit), limits);
    return application;
}

void checkSettings(const Bundle& bundle, const std::string& package, TargetLimits& limits, FileListing& listing) {
    if (bundle.memoryLimit && limits.heapBytes && *bundle.memoryLimit > *limits.heapBytes)
        listing.findings.push_back({true, kPackageMemory,
                                    messageText(kPackageMemory, {{"package", package},
                                                                 {"size", bytesInWords(*bundle.memoryLimit)},
                                                                 {"platform", limits.platform},
                                                                 {"limit", bytesInWords(*limits.heapBytes)}}),
                                    package});
    lowerMemory(bundle.memoryLimit, limits);
}

} // namespace qlpipe
