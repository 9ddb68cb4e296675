// SPDX-License-Identifier: Apache-2.0
// What riggers wait for: opening a scene, loading a mesh into the table, scrolling. Figures that
// matter are ratios within one run, printed as counters, beside the goal that they should stay
// below.
#include <sstream>

#include <QFileInfo>
#include <QString>

#include <benchmark/benchmark.h>

#include "riggingScene.h"

namespace
{

const double kMegabyte = 1024.0 * 1024.0;

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
    double loading = 0.0;
    double reading = 0.0;
    for (auto _ : state) {
        const double seconds = rigging::secondsOf([&] { rigging::loadTable(model); });
        reading += rigging::secondsToReadWeights();
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

double secondsPerScreenful(const QAbstractItemModel &model)
{
    int page = 0;
    return rigging::quickestOf(100, [&] { readScreenful(model, 1 + page++ * 60); });
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
