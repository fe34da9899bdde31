#include "Apps/fernwick/completion/scripts.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/verbs/verbs.h"

namespace cli {

int runCompletion(const Options& options, Console& console) {
    const auto& shell = options.action;
    console.out(shell == "bash" ? kBashCompletion : shell == "zsh" ? kZshCompletion : kFishCompletion);
    return kGood;
}

} // namespace cli
