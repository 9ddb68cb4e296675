// SPDX-License-Identifier: Apache-2.0
#include "app/options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>

#include "ma/standardStream.h"

namespace host::app
{

namespace
{

[[noreturn]] void refuse(const QString &reason)
{
    std::fprintf(stderr, "korvex: %s\n", reason.toUtf8().constData());
    std::exit(1);
}

[[noreturn]] void show(const QString &text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::exit(0);
}

const char kDescription[] =
    "Edits the skin weights of Maya scenes as a spreadsheet, without Maya.\n\n"
    "Batch mode opens -file, runs each -command, then -script, then writes -save. If the scene or "
    "the script can't be read, nothing runs, nothing is saved and the exit code is 1; so it is "
    "when saving fails. An error in MEL ends it like that only with --strict; otherwise, like "
    "Maya's batch mode, it goes on and ends with exit code 0 unless `quit -exitCode` says "
    "otherwise.\n\n"
    "- as -file or -script is standard input, as -save standard output; messages then go to "
    "standard error.";

// Taken by Qt itself from the arguments of a window's application.
const char *const kOptionsOfQt[] = {
    "platform", "platformpluginpath", "platformtheme", "plugin",  "qwindowgeometry", "qwindowicon",
    "session",  "qwindowtitle",       "style",         "display", "stylesheet",      "geometry"};

QStringList decoded(int argumentCount, char **arguments)
{
    QStringList all;
    for (int i = 0; i < argumentCount; ++i) {
        all.append(QString::fromUtf8(arguments[i]));
        if (all.last().toUtf8() != arguments[i])
            refuse("this argument is not UTF-8: " + all.last());
    }
    return all;
}

void addOptionsOfQt(QCommandLineParser &parser)
{
    for (const char *name : kOptionsOfQt) {
        QCommandLineOption option(QString::fromLatin1(name), QString(), "value");
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
}

// All that can be said against saving there before there is anything to save.
void checkSavePath(const QString &path)
{
    if (path == ma::kStandardStream)
        return;
    const QFileInfo file(path);
    if (file.suffix().compare("ma", Qt::CaseInsensitive) != 0)
        refuse("--save " + path + ": scenes are saved as Maya ASCII, in a file that ends in .ma");
    if (file.exists() && !file.isFile())
        refuse("--save " + path + ": this is no file that could be replaced");
}

void check(const Options &options)
{
    const struct {
        bool isWrong;
        const char *reason;
    } rules[] = {
        {options.isBatch && (options.opensEditor || !options.picture.isEmpty()),
         "--edit and --picture need a window: leave out --batch"},
        {!options.isBatch && options.isStrict, "--strict goes with --batch"},
        {!options.isBatch && !options.saveAs.isEmpty(), "--save goes with --batch"},
        {options.file == ma::kStandardStream && options.script == ma::kStandardStream,
         "standard input is either the scene or the script"},
    };
    for (const auto &rule : rules) {
        if (rule.isWrong)
            refuse(rule.reason);
    }
    if (!options.saveAs.isEmpty())
        checkSavePath(options.saveAs);
}

} // namespace

Options readOptions(int argumentCount, char **arguments)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(QString::fromUtf8(kDescription));
    const QCommandLineOption help({"help", "h"}, "Show this text.");
    const QCommandLineOption version({"version", "v"}, "Show the version.");
    const QCommandLineOption batch("batch", "Run without a window.");
    const QCommandLineOption strict("strict", "Batch: the first error ends it, with exit code 1.");
    const QCommandLineOption file("file", "Open this scene first.", "scene");
    const QCommandLineOption command("command", "Run this MEL; may be given repeatedly.", "mel");
    const QCommandLineOption script("script", "Run the MEL in this file.", "file");
    const QCommandLineOption save("save", "Batch: write the scene to this .ma file at the end.",
                                  "file");
    const QCommandLineOption edit("edit", "Open the weight editor on this scene.", "scene");
    const QCommandLineOption picture("picture", "Write a picture of the window, then quit.", "png");
    parser.addOptions({help, version, batch, strict, file, command, script, save, edit, picture});
    parser.addPositionalArgument("scene", "The scene to open.", "[scene]");
    addOptionsOfQt(parser);

    if (!parser.parse(decoded(argumentCount, arguments)))
        refuse(parser.errorText() + " korvex --help lists the options.");
    if (parser.isSet(version))
        show(QCoreApplication::applicationName() + ' ' + KORVEX_VERSION + '\n');
    if (parser.isSet(help)) {
        const QCoreApplication named(argumentCount, arguments); // for the line "Usage:"
        show(parser.helpText());
    }

    // The value of an option that makes sense once.
    const auto single = [&parser](const QCommandLineOption &option) {
        const QStringList values = parser.values(option);
        const QString name = "--" + option.names().first();
        if (values.size() > 1)
            refuse(name + " is given more than once");
        if (!values.isEmpty() && values.first().isEmpty())
            refuse(name + " is given without a name");
        return values.value(0);
    };
    Options options;
    options.isBatch = parser.isSet(batch);
    options.isStrict = parser.isSet(strict);
    options.commands = parser.values(command);
    options.script = single(script);
    options.saveAs = single(save);
    options.opensEditor = parser.isSet(edit);
    options.picture = single(picture);
    options.choosesPlatform = parser.isSet("platform");
    const QStringList scenes =
        parser.values(file) + parser.values(edit) + parser.positionalArguments();
    if (scenes.size() > 1)
        refuse("one scene at a time: " + scenes.join(", "));
    if (scenes.contains(QString()))
        refuse("the name of the scene is empty");
    options.file = scenes.value(0);
    check(options);
    return options;
}

} // namespace host::app
