// SPDX-License-Identifier: Apache-2.0
#include "app/options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace host::app
{

namespace
{

[[noreturn]] void refuse(const QString &reason)
{
    std::fprintf(stderr, "korvex: %s\n", qPrintable(reason));
    std::exit(1);
}

const char kDescription[] =
    "Edits the skin weights of Maya scenes as a spreadsheet, without Maya.\n\n"
    "Batch mode opens -file, runs each -command, then -script, then writes -save. Like Maya's "
    "batch mode it ends with exit code 0 whatever errors were shown, unless `quit -exitCode` says "
    "otherwise; with --strict, any error makes the exit code 1.";

} // namespace

bool wantsBatch(int argumentCount, char **arguments)
{
    for (int i = 1; i < argumentCount; ++i) {
        if (std::strcmp(arguments[i], "--batch") == 0 || std::strcmp(arguments[i], "-batch") == 0)
            return true;
    }
    return false;
}

Options readOptions()
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(QString::fromUtf8(kDescription));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption batch("batch", "Run without a window.");
    const QCommandLineOption strict("strict", "Batch: exit with 1 after any error.");
    const QCommandLineOption file("file", "Open this scene first.", "scene");
    const QCommandLineOption command("command", "Run this MEL; may be given repeatedly.", "mel");
    const QCommandLineOption script("script", "Run the MEL in this file.", "file");
    const QCommandLineOption save("save", "Write the scene to this file at the end.", "file");
    const QCommandLineOption edit("edit", "Open the weight editor on this scene.", "scene");
    const QCommandLineOption picture("picture", "Write a picture of the window, then quit.", "png");
    parser.addOptions({batch, strict, file, command, script, save, edit, picture});
    parser.addPositionalArgument("scene", "The scene to open.", "[scene]");
    parser.process(*QCoreApplication::instance());

    Options options;
    options.isBatch = parser.isSet(batch);
    options.isStrict = parser.isSet(strict);
    options.commands = parser.values(command);
    options.script = parser.value(script);
    options.saveAs = parser.value(save);
    options.opensEditor = parser.isSet(edit);
    options.picture = parser.value(picture);
    const QStringList scenes =
        parser.values(file) + parser.values(edit) + parser.positionalArguments();
    if (scenes.size() > 1)
        refuse("one scene at a time: " + scenes.join(", "));
    if (!scenes.isEmpty())
        options.file = scenes.first();
    if (options.isBatch && (options.opensEditor || !options.picture.isEmpty()))
        refuse("--edit and --picture need a window: leave out --batch");
    if (!options.isBatch && options.isStrict)
        refuse("--strict goes with --batch");
    return options;
}

} // namespace host::app
