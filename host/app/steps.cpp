// SPDX-License-Identifier: Apache-2.0
#include "app/steps.h"

#include <QFile>
#include <cstdio>
#include <new>
#include <vector>

#include "api/process.h"
#include "ma/maFile.h"
#include "ma/standardStream.h"
#include "scene/error.h"

namespace host::app
{

namespace
{

constexpr int kMaxScriptBytes = 64 << 20;
constexpr qint64 kBlockBytes = 1 << 20;

bool isStandardStream(const QString &path)
{
    return path == ma::kStandardStream;
}

QString scriptName(const QString &path)
{
    return isStandardStream(path) ? "on standard input" : path;
}

std::string scenePath(const QString &path)
{
    const std::string bytes = path.toStdString();
    return isStandardStream(path) ? bytes : ma::absolutePath(bytes);
}

// Throws Error.
QString readScript(Output &output, const QString &path)
{
    const std::string name = "the script " + scriptName(path).toStdString();
    QFile file(path);
    const bool isOpen = isStandardStream(path) ? file.open(stdin, QIODevice::ReadOnly)
                                               : file.open(QIODevice::ReadOnly);
    QByteArray bytes;
    bool isAtEnd = !isOpen;
    while (!isAtEnd && bytes.size() <= kMaxScriptBytes) {
        const QByteArray block = file.read(kBlockBytes);
        isAtEnd = block.isEmpty();
        bytes += block;
    }
    if (file.error() != QFile::NoError)
        throw Error("Cannot read " + name + ": " + file.errorString().toStdString());
    if (bytes.size() > kMaxScriptBytes)
        throw Error("Cannot read " + name + ": It is longer than 64 MB");
    const QString text = QString::fromUtf8(bytes);
    if (text.contains(QChar::ReplacementCharacter))
        output.warning("Bytes of " + name + " that are not UTF-8 were replaced.");
    return text;
}

void runMel(Process &process, const QString &mel, const QString &file)
{
    mel::RunOptions options;
    options.undo = true;
    options.file = file.toStdString();
    process.interpreter().run(mel.toStdString(), options);
}

} // namespace

// MEL's errors name a line; a step of the program has none.
bool succeeds(Process &process, const std::function<void()> &step)
{
    Output &output = process.session().output();
    try {
        step();
        return true;
    } catch (const std::bad_alloc &) {
        output.error("Out of memory.");
    } catch (const std::exception &error) {
        output.error(error.what());
    }
    return false;
}

bool openScene(Process &process, const QString &path)
{
    return succeeds(process, [&] { ma::openFile(process.interpreter(), scenePath(path)); });
}

bool runScripts(Process &process, const Options &options)
{
    Output &output = process.session().output();
    QString script;
    const auto read = [&] { script = readScript(output, options.script); };
    if (!options.script.isEmpty() && !succeeds(process, read))
        return false;
    struct Text {
        QString mel;
        QString file;
    };
    std::vector<Text> texts;
    for (const QString &command : options.commands)
        texts.push_back({command, QString()});
    texts.push_back({script, scriptName(options.script)});

    const auto isStopped = [&] { return options.isStrict && output.errorCount() > 0; };
    for (const Text &text : texts) {
        if (isStopped() || process.interpreter().quitRequested)
            break;
        runMel(process, text.mel, text.file);
    }
    return !isStopped();
}

bool saveScene(Process &process, const QString &path)
{
    return succeeds(process, [&] {
        const std::string file = scenePath(path);
        if (isStandardStream(path))
            ma::rewriteFile(process.interpreter(), file);
        else
            ma::saveFile(process.interpreter(), file);
    });
}

QString melQuoted(const QString &text)
{
    QString quoted = text;
    quoted.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + quoted + '"';
}

} // namespace host::app
