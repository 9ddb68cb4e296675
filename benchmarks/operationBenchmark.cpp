// SPDX-License-Identifier: Apache-2.0
// What operations on a whole mesh cost: against reading all its weights from the skin cluster once,
// which none of them can do without.
#include <string>

#include <benchmark/benchmark.h>

#include "riggingScene.h"

namespace
{

// Five rounds, undone before the next run.
void smoothByCommand(benchmark::State &state, const char *tolerance, const char *limit)
{
    rigging::openScene();
    rigging::scatterWeights();
    const std::string command =
        std::string("skinCluster -e -sw ") + tolerance + " -swi 5 -omi " + limit + " sheetSkin";
    const double reading = rigging::secondsToReadWeights();
    double smoothing = 0.0;
    for (auto _ : state) {
        const double seconds = rigging::secondsOf([&] { rigging::mel(command); });
        rigging::mel("undo");
        smoothing += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["ratio"] = smoothing / double(state.iterations()) / reading;
    state.counters["goal"] = 25;
}
BENCHMARK_CAPTURE(smoothByCommand, tolerance0, "0", "1")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(smoothByCommand, tolerance05, "0.5", "1")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(smoothByCommand, tolerance0noLimit, "0", "0")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(smoothByCommand, tolerance01, "0.1", "1")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
