// SPDX-License-Identifier: Apache-2.0
// The main function of all benchmark programs: an application with a running host.
#include <QApplication>

#include <benchmark/benchmark.h>

#include <maya/MLibrary.h>

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
