// SPDX-License-Identifier: Apache-2.0
// What operations on a whole mesh cost: against reading all its weights from the skin cluster once,
// which none of them can do without. What undoing them costs stands beside it.
#include <string>

#include <QItemSelection>

#include <benchmark/benchmark.h>

#include "riggingScene.h"

namespace
{

// Runs `operation` and undoes it, so that each run starts from the same weights.
template <typename Operation>
void measure(benchmark::State &state, double goal, Operation operation)
{
    const double reading = rigging::secondsToReadWeights();
    double doing = 0.0;
    double undoing = 0.0;
    for (auto _ : state) {
        const double seconds = rigging::secondsOf(operation);
        undoing += rigging::secondsOf([] { rigging::mel("undo"); });
        doing += seconds;
        state.SetIterationTime(seconds);
    }
    const double runs = double(state.iterations());
    state.counters["ratio"] = doing / runs / reading;
    state.counters["goal"] = goal;
    state.counters["undo"] = undoing / runs / reading;
}

// The opened scene in the table, with nothing selected.
QAbstractItemModel &loadedTable()
{
    QAbstractItemModel &model = rigging::editorModel();
    rigging::openScene();
    rigging::loadTable(model);
    rigging::selectCells(model, QItemSelection());
    return model;
}

QAbstractItemModel &tableWithColumn()
{
    QAbstractItemModel &model = loadedTable();
    const QModelIndex last = model.index(model.rowCount() - 1, 0);
    rigging::selectCells(model, QItemSelection(model.index(0, 0), last));
    return model;
}

void smoothByCommand(benchmark::State &state, const char *tolerance)
{
    rigging::openScene();
    rigging::scatterWeights();
    const std::string command =
        std::string("skinCluster -e -sw ") + tolerance + " -swi 5 -omi 1 sheetSkin";
    measure(state, 25, [&] { rigging::mel(command); });
}
BENCHMARK_CAPTURE(smoothByCommand, tolerance0, "0")->UseManualTime()->Unit(benchmark::kMillisecond);
// Some of the vertices are bad.
BENCHMARK_CAPTURE(smoothByCommand, tolerance02, "0.2")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(smoothByCommand, tolerance05, "0.5")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void smooth(benchmark::State &state)
{
    QAbstractItemModel &model = rigging::editorModel();
    rigging::openScene();
    rigging::scatterWeights();
    rigging::loadTable(model);
    measure(state, 25, [&] {
        rigging::call(model, "applySmoothSkinWeights", Q_ARG(double, 0.0), Q_ARG(int, 5));
    });
}
BENCHMARK(smooth)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

// The tool smooths the joint of the column.
void paintSmooth(benchmark::State &state)
{
    QAbstractItemModel &model = tableWithColumn();
    measure(state, 25, [&] { rigging::call(model, "applySkinPaintSmooth", Q_ARG(double, 1.0)); });
}
BENCHMARK(paintSmooth)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

// From eight influences to four.
void limitInfluences(benchmark::State &state)
{
    QAbstractItemModel &model = loadedTable();
    rigging::call(model, "setMaxValue", Q_ARG(int, 4));
    measure(state, 10, [&] { rigging::call(model, "applyMaxInfluence"); });
}
BENCHMARK(limitInfluences)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

void floodColumn(benchmark::State &state)
{
    QAbstractItemModel &model = tableWithColumn();
    measure(state, 4, [&] { rigging::call(model, "replaceValue", Q_ARG(double, 0.3)); });
}
BENCHMARK(floodColumn)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

// Relative: each vertex gets a weight of its own.
void dragColumn(benchmark::State &state)
{
    QAbstractItemModel &model = tableWithColumn();
    measure(state, 4,
            [&] { rigging::call(model, "dragSlider", Q_ARG(double, 0.1), Q_ARG(bool, false)); });
}
BENCHMARK(dragColumn)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

} // namespace
