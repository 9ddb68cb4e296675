// SPDX-License-Identifier: Apache-2.0
// What riggers wait for while they type: one cell, and a thousand at once, in a table of 100,000
// vertices and 100 joints. Ratios within one run, beside the goal that they should stay below.
#include <QItemSelection>

#include <benchmark/benchmark.h>

#include "riggingScene.h"

namespace
{

// The table with the first `count` cells of a joint column selected, of vertices that it moves.
QAbstractItemModel &tableWithSelection(int count)
{
    QAbstractItemModel &model = rigging::editorModel();
    if (model.rowCount() != rigging::kVertices + 1) {
        rigging::openScene();
        rigging::loadTable(model);
    }
    rigging::selectCells(model, QItemSelection(model.index(1, 0), model.index(count, 0)));
    return model;
}

// Two texts in turn, so that each edit changes the weights.
struct typedTexts {
    const char *first, *second;
};
const typedTexts kValues = {"0.3", "0.4"};
const typedTexts kChanges = {"+=0.01", "-=0.01"};

double secondsPerEdit(QAbstractItemModel &model, int times, const typedTexts &texts = kValues)
{
    int number = 0;
    return rigging::quickestOf(times, [&] {
        model.setData(model.index(1, 0), ++number % 2 ? texts.first : texts.second);
    });
}

// Against reading all weights from the skin cluster once: an edit that reloads the table costs
// several times that.
void typeIntoOneCell(benchmark::State &state)
{
    QAbstractItemModel &model = tableWithSelection(1);
    const double reading = rigging::secondsToReadWeights();
    double editing = 0.0;
    for (auto _ : state) {
        editing = secondsPerEdit(model, 50);
        state.SetIterationTime(editing);
    }
    state.counters["ratio"] = editing / reading;
    state.counters["goal"] = 0.02;
}
BENCHMARK(typeIntoOneCell)->UseManualTime()->Iterations(5)->Unit(benchmark::kMicrosecond);

void typeIntoAThousandCells(benchmark::State &state, const typedTexts &texts)
{
    const double one = secondsPerEdit(tableWithSelection(1), 50);
    QAbstractItemModel &model = tableWithSelection(1000);
    double thousand = 0.0;
    for (auto _ : state) {
        thousand = secondsPerEdit(model, 6, texts);
        state.SetIterationTime(thousand);
    }
    state.counters["ratio"] = thousand / one;
    state.counters["goal"] = 20;
}
BENCHMARK_CAPTURE(typeIntoAThousandCells, value, kValues)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMicrosecond);
// Each cell gets a weight of its own.
BENCHMARK_CAPTURE(typeIntoAThousandCells, change, kChanges)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMicrosecond);

} // namespace
