// SPDX-License-Identifier: Apache-2.0
// What riggers wait for: opening a scene, loading a mesh into the table, scrolling. Figures that
// matter are ratios within one run, printed as counters, beside the goal that they should stay
// below.
#include <algorithm>
#include <chrono>
#include <limits>
#include <sstream>

#include <QAbstractItemModel>
#include <QApplication>
#include <QFileInfo>
#include <QString>

#include <benchmark/benchmark.h>

#include <maya/MDoubleArray.h>
#include <maya/MFnSkinCluster.h>
#include <maya/MLibrary.h>

#include "riggingScene.h"

namespace
{

const double kMegabyte = 1024.0 * 1024.0;

template <typename Function>
double secondsOf(Function function)
{
    const auto start = std::chrono::steady_clock::now();
    function();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void openSceneFile(benchmark::State &state)
{
    const std::string path = rigging::sceneFile();
    for (auto _ : state)
        rigging::mel("file -f -open \"" + path + "\"");
    const double megabytes = double(QFileInfo(QString::fromStdString(path)).size()) / kMegabyte;
    state.counters["MB/s"] =
        benchmark::Counter(megabytes * double(state.iterations()), benchmark::Counter::kIsRate);
    state.counters["MB"] = megabytes;
}
BENCHMARK(openSceneFile)->Unit(benchmark::kMillisecond);

// Against reading all weights from the skin cluster once, which a load cannot do without.
void loadIntoTable(benchmark::State &state)
{
    QAbstractItemModel &model = rigging::editorModel();
    rigging::openScene();
    const rigging::Skin skin = rigging::skin();
    double loading = 0.0;
    double reading = 0.0;
    for (auto _ : state) {
        const double seconds = secondsOf([&] { rigging::loadTable(model); });
        reading += secondsOf([&] {
            MDoubleArray weights;
            unsigned int influences = 0;
            MFnSkinCluster(skin.skinCluster)
                .getWeights(skin.shape, skin.vertices, weights, influences);
            benchmark::DoNotOptimize(weights[0]);
        });
        loading += seconds;
        state.SetIterationTime(seconds);
    }
    if (model.rowCount() != rigging::kVertices + 1)
        state.SkipWithError("the table did not load");
    state.counters["ratio"] = loading / reading;
    state.counters["goal"] = 3.0;
}
BENCHMARK(loadIntoTable)->UseManualTime()->Unit(benchmark::kMillisecond);

// Sixty rows and thirty columns with headers, every role that a view asks for.
void readScreenful(const QAbstractItemModel &model, int firstRow)
{
    static const int kRoles[] = {Qt::DisplayRole,       Qt::BackgroundRole, Qt::ForegroundRole,
                                 Qt::TextAlignmentRole, Qt::FontRole,       Qt::DecorationRole,
                                 Qt::CheckStateRole};
    for (int row = firstRow; row < firstRow + 60; ++row) {
        for (const int role : kRoles)
            benchmark::DoNotOptimize(model.headerData(row, Qt::Vertical, role));
        for (int column = 0; column < 30; ++column) {
            const QModelIndex index = model.index(row, column);
            benchmark::DoNotOptimize(model.flags(index));
            for (const int role : kRoles)
                benchmark::DoNotOptimize(model.data(index, role));
        }
    }
}

// The quickest of several pages, so that a pause of the machine does not count.
double secondsPerScreenful(const QAbstractItemModel &model)
{
    double quickest = std::numeric_limits<double>::max();
    for (int page = 0; page < 100; ++page)
        quickest = std::min(quickest, secondsOf([&] { readScreenful(model, 1 + page * 60); }));
    return quickest;
}

// One cell of each of the first `count` vertices.
void lockCells(int count)
{
    std::ostringstream script;
    for (int vertex = 0; vertex < count; ++vertex)
        script << "setAttr -type \"string\" sheetSkin.lockedCellIndices[" << vertex
               << "].lockedLocalJoints[0] \"|joint" << vertex % 30 << "\";\n";
    rigging::mel(script.str());
}

void showCellsBesideLocks(benchmark::State &state)
{
    QAbstractItemModel &model = rigging::editorModel();
    rigging::openScene();
    rigging::loadTable(model);
    const double unlocked = secondsPerScreenful(model);
    lockCells(10000);
    rigging::loadTable(model);
    if (model.flags(model.index(1, 0)).testFlag(Qt::ItemIsEditable))
        state.SkipWithError("the locks are not there");
    double locked = 0.0;
    for (auto _ : state) {
        locked = secondsPerScreenful(model);
        state.SetIterationTime(locked);
    }
    state.counters["ratio"] = locked / unlocked;
    state.counters["goal"] = 1.3;
}
BENCHMARK(showCellsBesideLocks)->UseManualTime()->Iterations(5)->Unit(benchmark::kMicrosecond);

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
