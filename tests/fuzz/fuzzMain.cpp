// SPDX-License-Identifier: Apache-2.0
// korvexFuzz: opens faulty scenes and runs random MEL, each case in a process of its own.
//
//   korvexFuzz [--seed N] [--seconds N] [--first N] [--cases N] [--keep FOLDER] SCENE...
//
// Runs cases until the time or their number is up. A case that crashes, hangs, takes too much
// memory or does not hold is named, with its number, and its files are kept in FOLDER. The same
// seed, number and scenes give the same case again: `--first 1234 --cases 1`.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "api/process.h"
#include "fuzz/fuzzCase.h"
#include "fuzz/sceneMutation.h"

namespace
{

constexpr unsigned kSecondsPerCase = 20; // of the processor; a case takes some hundredths
constexpr rlim_t kBytesPerCase = rlim_t(2) << 30;

// The sanitizers reserve an address space of their own; ASAN_OPTIONS bounds their memory.
#ifdef __SANITIZE_ADDRESS__
constexpr bool kBoundsMemory = false;
#else
constexpr bool kBoundsMemory = true;
#endif

struct Run {
    std::vector<std::string> scenes;
    std::uint64_t seed = 1;
    std::string folder; // scratch
    std::string keep;   // empty for nowhere
};

std::string textOf(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void limitProcess()
{
    const rlimit time = {kSecondsPerCase, kSecondsPerCase};
    setrlimit(RLIMIT_CPU, &time);
    alarm(5 * kSecondsPerCase); // for what waits
    const rlimit memory = {kBytesPerCase, kBytesPerCase};
    if (kBoundsMemory)
        setrlimit(RLIMIT_AS, &memory);
    const rlimit noDump = {0, 0};
    setrlimit(RLIMIT_CORE, &noDump);
}

// Cases take turns: a file, then MEL.
void runCase(host::Process &maya, const Run &run, std::uint64_t number)
{
    Chance chance(run.seed * 0x9E3779B97F4A7C15u + number);
    const std::string &scene = run.scenes[number / 2 % run.scenes.size()];
    if (number % 2 == 1) {
        checkMel(maya, scene, run.folder, chance);
        return;
    }
    const std::string file = run.folder + "/case.ma";
    std::ofstream(file, std::ios::binary) << mutatedScene(textOf(scene), chance);
    checkFile(maya, file, run.folder);
}

std::string failureOf(int status)
{
    if (WIFSIGNALED(status))
        return std::string("signal ") + strsignal(WTERMSIG(status));
    return WEXITSTATUS(status) == 0 ? "" : "exit code " + std::to_string(WEXITSTATUS(status));
}

void keepFiles(const Run &run, std::uint64_t number)
{
    namespace fs = std::filesystem;
    if (run.keep.empty())
        return;
    fs::create_directories(run.keep);
    const std::string name = run.keep + "/case-" + std::to_string(number);
    const char *extension = number % 2 == 1 ? ".mel" : ".ma";
    fs::copy_file(run.folder + "/case" + extension, name + extension,
                  fs::copy_options::overwrite_existing);
}

// False if the case failed, which it then has said.
bool passes(host::Process &maya, const Run &run, std::uint64_t number)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        limitProcess();
        runCase(maya, run, number);
        std::_Exit(0);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) {
        std::perror("korvexFuzz");
        return false;
    }
    const std::string failure = failureOf(status);
    if (failure.empty())
        return true;
    std::fprintf(stderr, "case %llu, seed %llu, %s: %s\n", (unsigned long long)number,
                 (unsigned long long)run.seed, run.scenes[number / 2 % run.scenes.size()].c_str(),
                 failure.c_str());
    keepFiles(run, number);
    return false;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    QCommandLineParser parser;
    const QCommandLineOption seed("seed", "Another seed gives other cases.", "number", "1");
    const QCommandLineOption seconds("seconds", "How long.", "number", "60");
    const QCommandLineOption first("first", "The number of the first case.", "number", "0");
    const QCommandLineOption cases("cases", "How many at most.", "number", "1000000000");
    const QCommandLineOption keep("keep", "Where the files of failing cases go.", "folder");
    parser.addOptions({seed, seconds, first, cases, keep});
    parser.addPositionalArgument("scenes", "Sound scenes to start from.", "scene...");
    parser.addHelpOption();
    parser.process(application);

    const QTemporaryDir folder;
    Run run;
    for (const QString &scene : parser.positionalArguments())
        run.scenes.push_back(scene.toStdString());
    run.seed = parser.value(seed).toULongLong();
    run.folder = folder.path().toStdString();
    run.keep = parser.value(keep).toStdString();
    if (run.scenes.empty())
        parser.showHelp(1);

    host::Process &maya = host::Process::start(host::Session::Mode::batch, false);
    const auto end =
        std::chrono::steady_clock::now() + std::chrono::seconds(parser.value(seconds).toInt());
    const std::uint64_t begin = parser.value(first).toULongLong();
    const std::uint64_t most = parser.value(cases).toULongLong();
    std::uint64_t done = 0;
    unsigned failed = 0;
    for (; done < most && std::chrono::steady_clock::now() < end; ++done)
        failed += passes(maya, run, begin + done) ? 0 : 1;
    std::printf("%llu cases with seed %llu, %u failed\n", (unsigned long long)done,
                (unsigned long long)run.seed, failed);
    host::Process::stop();
    return failed > 0 || done == 0 ? 1 : 0;
}
