#include "Apps/common/maker.h"
#include <toml++/toml.h>

namespace apps {

namespace {

/// Empty without an installation or the file: messages then contain no addresses.
toml::table makerOf(const std::string& installation) {
    if (installation.empty()) return {};
    try {
        return toml::parse_file(installation + "/maker.toml");
    } catch (const toml::parse_error&) { return {}; }
}

} // namespace

fernwick::App appOf(const std::string& installation, const std::string& programFolder) {
    fernwick::App app;
    app.Path = installation.empty() ? programFolder : installation + "/VB Toolkit/Bin";
    const auto maker = makerOf(installation);
    const auto address = [&maker](const char* key) { return maker[key].value_or(std::string()); };
    app.SupportWebAddress = address("support");
    app.WebAddress = address("web");
    app.RuntimeWebAddress = address("runtime_download");
    app.SamplesWebAddress = address("samples");
    app.ForumWebAddress = address("forum");
    app.DevelopersWebAddress = address("developers");
    return app;
}

std::string messagePagesOf(const std::string& installation) {
    return makerOf(installation)["messages"].value_or(std::string());
}

} // namespace apps
