// SPDX-License-Identifier: Apache-2.0
#include "support/mayaSession.h"

#include <iostream>

#include <QApplication>

#include <maya/MDoubleArray.h>
#include <maya/MGlobal.h>
#include <maya/MLibrary.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

namespace
{

// The offscreen platform tells of each window that it cannot raise it.
void printQtMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")))
        std::cerr << text.toStdString() << std::endl;
}

} // namespace

int runMayaTests(int argumentCount, char **arguments)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(printQtMessage);
    QApplication application(argumentCount, arguments);
    testing::InitGoogleTest(&argumentCount, arguments);
    if (!MLibrary::initialize(false, arguments[0]))
        return 1;
    const int result = RUN_ALL_TESTS();
    MLibrary::cleanup(result, false);
    return result;
}

MayaSession::MayaSession()
{
    mel("file -f -new");
    callback_ = MCommandMessage::addCommandOutputCallback(keepMessage, this);
}

MayaSession::~MayaSession()
{
    MMessage::removeCallback(callback_);
}

void MayaSession::mel(const std::string &script)
{
    EXPECT_TRUE(MGlobal::executeCommand(script.c_str(), false, true)) << script;
}

std::string MayaSession::melString(const std::string &script)
{
    MStatus status;
    const MString result =
        MGlobal::executeCommandStringResult(script.c_str(), false, true, &status);
    EXPECT_TRUE(status) << script;
    return result.asUTF8();
}

std::vector<double> MayaSession::melNumbers(const std::string &script)
{
    MDoubleArray result;
    EXPECT_TRUE(MGlobal::executeCommand(script.c_str(), result, false, true)) << script;
    std::vector<double> numbers;
    for (unsigned int i = 0; i < result.length(); ++i)
        numbers.push_back(result[i]);
    return numbers;
}

std::string MayaSession::melStrings(const std::string &script)
{
    MStringArray result;
    EXPECT_TRUE(MGlobal::executeCommand(script.c_str(), result, false, true)) << script;
    std::string text;
    for (unsigned int i = 0; i < result.length(); ++i)
        text += (i > 0 ? " " : "") + std::string(result[i].asUTF8());
    return text;
}

std::string MayaSession::melError(const std::string &script)
{
    takeErrors();
    EXPECT_FALSE(MGlobal::executeCommand(script.c_str(), false, true)) << script;
    return takeErrors();
}

std::string MayaSession::takeErrors()
{
    std::string taken;
    taken.swap(errors_);
    return taken;
}

std::string MayaSession::takeWarnings()
{
    std::string taken;
    taken.swap(warnings_);
    return taken;
}

void MayaSession::keepMessage(const MString &message, MCommandMessage::MessageType type, void *self)
{
    MayaSession &session = *static_cast<MayaSession *>(self);
    std::string *kept = type == MCommandMessage::kError     ? &session.errors_
                        : type == MCommandMessage::kWarning ? &session.warnings_
                                                            : nullptr;
    if (kept)
        *kept += (kept->empty() ? "" : "\n") + std::string(message.asUTF8());
}
