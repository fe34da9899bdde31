#include "Apps/fernwick/version.h"
#include "Apps/fernwick/exit_status.h"
#include "Apps/fernwick/json_output.h"
#include "Apps/fernwick/verbs/verbs.h"

namespace cli {

int runVersion(const Options& options, Console& console) {
    if (options.format == Format::Json) {
        auto json = jsonResult("version");
        json["version"] = FERNWICK_VERSION;
        console.out(dumpJson(json));
    } else {
        console.out(versionLine() + "\n");
    }
    return kGood;
}

} // namespace cli
