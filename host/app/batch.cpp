// SPDX-License-Identifier: Apache-2.0
#include "app/batch.h"

#include "api/process.h"
#include "app/steps.h"
#include "ma/standardStream.h"

namespace host::app
{

void printMessage(const std::string &text, MessageKind kind, std::FILE *stream)
{
    const bool isProblem = kind == MessageKind::warning || kind == MessageKind::error;
    std::FILE *target = isProblem ? stderr : stream;
    std::fputs(plain(text, kind).c_str(), target);
    if (kind != MessageKind::display) // what print shows brings its own line ends
        std::fputc('\n', target);
    std::fflush(target);
}

int runBatch(Process &process, const Options &options)
{
    // A scene that is written to standard output has it for itself.
    std::FILE *stream = options.saveAs == ma::kStandardStream ? stderr : stdout;
    process.session().output().addListener(
        [stream](const std::string &text, MessageKind kind) { printMessage(text, kind, stream); });

    const mel::Interpreter &interpreter = process.interpreter();
    bool succeeded = (options.file.isEmpty() || openScene(process, options.file)) &&
                     runScripts(process, options);
    if (succeeded && !interpreter.quitRequested && !options.saveAs.isEmpty())
        succeeded = saveScene(process, options.saveAs);
    return interpreter.exitCode == 0 && !succeeded ? 1 : interpreter.exitCode;
}

} // namespace host::app
