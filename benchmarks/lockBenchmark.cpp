// SPDX-License-Identifier: Apache-2.0
// Rounding a whole table and locking many cells of it, as ratios within one run.
#include <QItemSelection>

#include <benchmark/benchmark.h>

#include "riggingScene.h"

namespace
{

// Against reading all weights from the skin cluster once. The full digits are at hand already.
void roundTable(benchmark::State &state)
{
    QAbstractItemModel &model = rigging::editorModel();
    rigging::openScene();
    rigging::loadTable(model);
    rigging::call(model, "newUnlockAll");
    rigging::call(model, "cacheUnroundedWeights");
    double rounding = 0.0;
    double reading = 0.0;
    int places = 2;
    for (auto _ : state) {
        const double seconds =
            rigging::secondsOf([&] { rigging::call(model, "setPrecision", Q_ARG(int, places)); });
        places = 5 - places; // 2 and 3 in turn
        reading += rigging::secondsToReadWeights();
        rounding += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["ratio"] = rounding / reading;
    state.counters["goal"] = 2.0;
}
BENCHMARK(roundTable)->UseManualTime()->Unit(benchmark::kMillisecond);

// A column of so many single cells.
double secondsToLockAndUnlock(QAbstractItemModel &model, int cells)
{
    rigging::selectCells(model, QItemSelection(model.index(1, 1), model.index(cells, 1)));
    return rigging::secondsOf([&] {
        rigging::call(model, "newLockSelected");
        rigging::call(model, "newUnlockSelected");
    });
}

// Ten times the cells against ten times the seconds.
void lockCellsInProportion(benchmark::State &state)
{
    QAbstractItemModel &model = rigging::editorModel();
    rigging::openScene();
    rigging::loadTable(model);
    secondsToLockAndUnlock(model, 2000); // makes the elements
    double few = 0.0;
    double many = 0.0;
    for (auto _ : state) {
        few += secondsToLockAndUnlock(model, 2000);
        const double seconds = secondsToLockAndUnlock(model, 20000);
        many += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["ratio"] = many / few / 10.0;
    state.counters["goal"] = 2.0;
}
BENCHMARK(lockCellsInProportion)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

} // namespace
