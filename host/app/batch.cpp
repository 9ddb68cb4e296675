// SPDX-License-Identifier: Apache-2.0
#include "app/batch.h"

#include <QFile>
#include <cstdio>

#include "api/process.h"

namespace host::app
{

namespace
{

void print(const std::string &text, MessageKind kind)
{
    const bool isProblem = kind == MessageKind::warning || kind == MessageKind::error;
    std::FILE *stream = isProblem ? stderr : stdout;
    std::fputs(plain(text, kind).c_str(), stream);
    if (kind != MessageKind::display) // what print shows brings its own line ends
        std::fputc('\n', stream);
    std::fflush(stream);
}

bool run(Process &process, const QString &mel, const QString &file = QString())
{
    mel::RunOptions options;
    options.undo = true;
    options.file = file.toStdString();
    process.interpreter().run(mel.toStdString(), options);
    return !process.interpreter().quitRequested;
}

} // namespace

QString melQuoted(const QString &text)
{
    QString quoted = text;
    quoted.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + quoted + '"';
}

void runScripts(Process &process, const Options &options)
{
    for (const QString &command : options.commands) {
        if (!run(process, command))
            return;
    }
    if (options.script.isEmpty())
        return;
    QFile script(options.script);
    if (!script.open(QIODevice::ReadOnly)) {
        process.session().output().error(
            ("Cannot read the script " + options.script + ": " + script.errorString())
                .toStdString());
        return;
    }
    run(process, QString::fromUtf8(script.readAll()), options.script);
}

int runBatch(Process &process, const Options &options)
{
    Session &session = process.session();
    session.output().addListener(print);
    mel::Interpreter &interpreter = process.interpreter();
    if (!options.file.isEmpty())
        run(process, "file -f -o " + melQuoted(options.file));
    if (!interpreter.quitRequested)
        runScripts(process, options);
    if (!interpreter.quitRequested && !options.saveAs.isEmpty())
        run(process,
            "file -rename " + melQuoted(options.saveAs) + "; file -f -save -type \"mayaAscii\"");
    if (interpreter.exitCode != 0)
        return interpreter.exitCode;
    return options.isStrict && session.output().errorCount() > 0 ? 1 : 0;
}

} // namespace host::app
