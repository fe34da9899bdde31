#include "Apps/fernwick/maker.h"
#include <toml++/toml.h>

namespace cli {

fernwick::App appOf(const std::string& installation, const std::string& programFolder) {
    fernwick::App app;
    app.Path = programFolder;
    try {
        const auto maker = toml::parse_file(installation + "/maker.toml");
        app.SupportWebAddress = maker["support"].value_or(std::string());
        app.WebAddress = maker["web"].value_or(std::string());
        app.RuntimeWebAddress = maker["runtime_download"].value_or(std::string());
    } catch (const toml::parse_error&) {
        // an installation without its maker's file still builds; messages then name no address
    }
    return app;
}

} // namespace cli
