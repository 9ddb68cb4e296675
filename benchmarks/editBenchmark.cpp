// SPDX-License-Identifier: Apache-2.0
// What riggers wait for while they type: one cell, and a thousand at once, in a table of 100,000
// vertices and 100 joints. Ratios within one run, beside the goal that they should stay below.
#include <algorithm>
#include <chrono>
#include <limits>

#include <QAbstractItemModel>
#include <QApplication>
#include <QItemSelectionModel>
#include <QTableView>

#include <benchmark/benchmark.h>

#include <maya/MDoubleArray.h>
#include <maya/MFnSkinCluster.h>
#include <maya/MLibrary.h>

#include "riggingScene.h"

namespace
{

template <typename Function>
double secondsOf(Function function)
{
    const auto start = std::chrono::steady_clock::now();
    function();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The quickest of several, so that a pause of the machine does not count.
template <typename Function>
double quickestOf(int times, Function function)
{
    double quickest = std::numeric_limits<double>::max();
    for (int i = 0; i < times; ++i)
        quickest = std::min(quickest, secondsOf(function));
    return quickest;
}

QTableView &tableView(const QAbstractItemModel &model)
{
    for (QWidget *widget : QApplication::allWidgets()) {
        QTableView *view = qobject_cast<QTableView *>(widget);
        if (view && view->model() == &model)
            return *view;
    }
    std::abort();
}

// The table with the first `count` cells of a joint column selected, of vertices that it moves.
QAbstractItemModel &tableWithSelection(int count)
{
    QAbstractItemModel &model = rigging::editorModel();
    if (model.rowCount() != rigging::kVertices + 1) {
        rigging::openScene();
        rigging::loadTable(model);
    }
    const QItemSelection cells(model.index(1, 0), model.index(count, 0));
    tableView(model).selectionModel()->select(cells, QItemSelectionModel::ClearAndSelect);
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
    return quickestOf(times, [&] {
        model.setData(model.index(1, 0), ++number % 2 ? texts.first : texts.second);
    });
}

// Against reading all weights from the skin cluster once: an edit that reloads the table costs
// several times that.
void typeIntoOneCell(benchmark::State &state)
{
    QAbstractItemModel &model = tableWithSelection(1);
    const rigging::Skin skin = rigging::skin();
    const double reading = quickestOf(3, [&] {
        MDoubleArray weights;
        unsigned int influences = 0;
        MFnSkinCluster(skin.skinCluster).getWeights(skin.shape, skin.vertices, weights, influences);
        benchmark::DoNotOptimize(weights[0]);
    });
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

int main(int argumentCount, char **arguments)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argumentCount, arguments);
    benchmark::Initialize(&argumentCount, arguments);
    if (!MLibrary::initialize(false, arguments[0]))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    MLibrary::cleanup(0, false);
    return 0;
}
