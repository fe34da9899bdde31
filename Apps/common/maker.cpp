#include "Apps/common/maker.h"
#include <toml++/toml.h>

namespace apps {

namespace {

/// An installation without its maker's file still builds; messages then name no address.
toml::table makerOf(const std::string& installation) {
    try {
        return toml::parse_file(installation + "/maker.toml");
    } catch (const toml::parse_error&) { return {}; }
}

} // namespace

fernwick::App appOf(const std::string& installation, const std::string& programFolder) {
    fernwick::App app;
    app.Path = programFolder;
    const auto maker = makerOf(installation);
    app.SupportWebAddress = maker["support"].value_or(std::string());
    app.WebAddress = maker["web"].value_or(std::string());
    app.RuntimeWebAddress = maker["runtime_download"].value_or(std::string());
    return app;
}

std::string messagePagesOf(const std::string& installation) {
    return makerOf(installation)["messages"].value_or(std::string());
}

} // namespace apps
