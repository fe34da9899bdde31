#pragma once
// The commands. Each writes its result to the console and returns the exit status.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/console.h"

namespace cli {

using RunVerb = int (*)(const Options& options, Console& console);

int runBuild(const Options& options, Console& console);
int runCheck(const Options& options, Console& console);
int runClean(const Options& options, Console& console);
int runCompletion(const Options& options, Console& console);
int runConvert(const Options& options, Console& console);
int runDependencies(const Options& options, Console& console);
int runDeploy(const Options& options, Console& console);
int runDevices(const Options& options, Console& console);
int runDoctor(const Options& options, Console& console);
int runExplain(const Options& options, Console& console);
int runImage(const Options& options, Console& console);
int runInfo(const Options& options, Console& console);
int runInit(const Options& options, Console& console);
int runInstallRuntime(const Options& options, Console& console);
int runMigration(const Options& options, Console& console); ///< of check
int runMessages(const Options& options, Console& console);
int runNew(const Options& options, Console& console);
int runPackage(const Options& options, Console& console);
int runRecent(const Options& options, Console& console);
int runRegistry(const Options& options, Console& console);
int runRun(const Options& options, Console& console);
int runSettings(const Options& options, Console& console);
int runSteps(const Options& options, Console& console);
int runTargets(const Options& options, Console& console);
int runTest(const Options& options, Console& console);
int runTrust(const Options& options, Console& console);
int runUpgrade(const Options& options, Console& console);
int runValidate(const Options& options, Console& console);
int runVersion(const Options& options, Console& console);
int runWorkbench(const Options& options, Console& console);

} // namespace cli
