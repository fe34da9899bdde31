#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/version_line.h"
#include "Apps/fernwick/verbs/verbs.h"

namespace cli {

int runVersion(const Options& options, Console& console) {
    if (options.format == Format::Json) {
        auto json = jsonResult("version");
        json["version"] = apps::kVersion;
        console.out(dumpJson(json));
    } else {
        console.out(versionLine() + "\n");
    }
    return kGood;
}

} // namespace cli
