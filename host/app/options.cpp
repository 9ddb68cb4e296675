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

const struct {
    const char *names; // with blanks in between
    const char *value; // what the help calls it; null for a switch
    const char *description;
} kOptions[] = {
    {"batch", nullptr, "Run without a window."},
    {"strict", nullptr, "Batch: the first error ends it, with exit code 1."},
    {"file", "scene", "Open this scene first."},
    {"command", "mel", "Run this MEL; may be given repeatedly."},
    {"script", "file", "Run the MEL in this file."},
    {"save", "file", "Batch: write the scene to this .ma file at the end."},
    {"edit", "scene", "Open the weight editor on this scene."},
    {"picture", "png", "Write a picture of the window, then quit."},
    {"help h", nullptr, "Show this text."},
    {"version v", nullptr, "Show the version."},
};

// Qt takes these itself from the arguments of an application with windows.
const char *const kOptionsOfQt[] = {
    "platform", "platformpluginpath", "platformtheme", "plugin",  "qwindowgeometry", "qwindowicon",
    "session",  "qwindowtitle",       "style",         "display", "stylesheet",      "geometry"};

void describeOptions(QCommandLineParser &parser)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(kDescription);
    for (const auto &row : kOptions)
        parser.addOption(
            QCommandLineOption(QString(row.names).split(' '), row.description, row.value));
    for (const char *name : kOptionsOfQt) {
        QCommandLineOption option(QString(name), QString(), "value");
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
    parser.addPositionalArgument("scene", "The scene to open.", "[scene]");
}

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

// The value of an option that makes sense once; empty if it is not given.
QString singleValue(const QCommandLineParser &parser, const QString &name)
{
    const QStringList values = parser.values(name);
    if (values.size() > 1)
        refuse("--" + name + " is given more than once");
    if (values.contains(QString()))
        refuse("--" + name + " is given without a name");
    return values.value(0);
}

QString sceneOf(const QCommandLineParser &parser)
{
    const QStringList scenes =
        parser.values("file") + parser.values("edit") + parser.positionalArguments();
    if (scenes.size() > 1)
        refuse("one scene at a time: " + scenes.join(", "));
    if (scenes.contains(QString()))
        refuse("the name of the scene is empty");
    return scenes.value(0);
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
    describeOptions(parser);
    if (!parser.parse(decoded(argumentCount, arguments)))
        refuse(parser.errorText() + " korvex --help lists the options.");
    if (parser.isSet("version"))
        show(QCoreApplication::applicationName() + ' ' + KORVEX_VERSION + '\n');
    if (parser.isSet("help")) {
        const QCoreApplication named(argumentCount, arguments); // for the line "Usage:"
        show(parser.helpText());
    }
    Options options;
    options.isBatch = parser.isSet("batch");
    options.isStrict = parser.isSet("strict");
    options.file = sceneOf(parser);
    options.commands = parser.values("command");
    options.script = singleValue(parser, "script");
    options.saveAs = singleValue(parser, "save");
    options.opensEditor = parser.isSet("edit");
    options.picture = singleValue(parser, "picture");
    options.choosesPlatform = parser.isSet("platform");
    check(options);
    return options;
}

} // namespace host::app
