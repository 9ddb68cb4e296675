// SPDX-License-Identifier: Apache-2.0
// Rounding a whole table and locking many cells of it, as ratios within one run.
#include <chrono>
#include <cstdlib>

#include <QAbstractItemModel>
#include <QApplication>
#include <QItemSelectionModel>
#include <QTableView>

#include <benchmark/benchmark.h>

#include <maya/MDoubleArray.h>
#include <maya/MFnSkinCluster.h>

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

void call(QAbstractItemModel &model, const char *slot)
{
    if (!QMetaObject::invokeMethod(&model, slot))
        std::abort();
}

void setPrecision(QAbstractItemModel &model, int places)
{
    if (!QMetaObject::invokeMethod(&model, "setPrecision", Q_ARG(int, places)))
        std::abort();
}

// Against reading all weights from the skin cluster once. The full digits are at hand already.
void roundTable(benchmark::State &state)
{
    QAbstractItemModel &model = rigging::editorModel();
    rigging::openScene();
    rigging::loadTable(model);
    call(model, "newUnlockAll");
    call(model, "cacheUnroundedWeights");
    const rigging::Skin skin = rigging::skin();
    double rounding = 0.0;
    double reading = 0.0;
    int places = 2;
    for (auto _ : state) {
        const double seconds = secondsOf([&] { setPrecision(model, places); });
        places = 5 - places; // 2 and 3 in turn
        reading += secondsOf([&] {
            MDoubleArray weights;
            unsigned int influences = 0;
            MFnSkinCluster(skin.skinCluster)
                .getWeights(skin.shape, skin.vertices, weights, influences);
            benchmark::DoNotOptimize(weights[0]);
        });
        rounding += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["ratio"] = rounding / reading;
    state.counters["goal"] = 2.0;
}
BENCHMARK(roundTable)->UseManualTime()->Unit(benchmark::kMillisecond);

QItemSelectionModel &selectionOf(const QAbstractItemModel &model)
{
    for (QWidget *widget : QApplication::allWidgets()) {
        const QTableView *view = qobject_cast<QTableView *>(widget);
        if (view && view->model() == &model)
            return *view->selectionModel();
    }
    std::abort();
}

// A column of so many single cells.
double secondsToLockAndUnlock(QAbstractItemModel &model, int cells)
{
    selectionOf(model).select(QItemSelection(model.index(1, 1), model.index(cells, 1)),
                              QItemSelectionModel::ClearAndSelect);
    return secondsOf([&] {
        call(model, "newLockSelected");
        call(model, "newUnlockSelected");
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
