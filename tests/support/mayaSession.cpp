// SPDX-License-Identifier: Apache-2.0
#include "support/mayaSession.h"

#include <iostream>
#include <sstream>

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
    becomeIdle();
}

void MayaSession::becomeIdle()
{
    if (qEnvironmentVariableIsSet("KORVEX_DEFERRED_EVENTS"))
        QCoreApplication::processEvents();
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
    const std::string errors = takeErrors();
    const std::string place = "line 1: ";
    return errors.rfind(place, 0) == 0 ? errors.substr(place.size()) : errors;
}

void MayaSession::makeSkin(const std::string &mesh, const std::vector<std::string> &joints,
                           const std::vector<std::vector<double>> &rows)
{
    std::ostringstream script;
    script.precision(17);
    std::string names;
    for (const std::string &joint : joints) {
        names += joint + ' ';
        if (melString("objExists " + joint) == "0")
            script << "select -cl; joint -n " << joint << ";\n";
    }
    const std::string skin = mesh + "Skin";
    script << "polyPlane -sx " << rows.size() / 2 - 1 << " -sy 1 -n " << mesh << ";\n"
           << "skinCluster -tsb -mi 5 -n " << skin << ' ' << names << mesh << ";\n"
           << "setAttr " << skin << ".nw 0;\n";
    for (std::size_t v = 0; v < rows.size(); ++v) {
        for (std::size_t i = 0; i < joints.size(); ++i)
            script << "setAttr " << skin << ".wl[" << v << "].w[" << i << "] " << rows[v][i]
                   << ";\n";
    }
    script << "setAttr " << skin << ".nw 1; select -cl;";
    mel(script.str());
}

std::vector<double> MayaSession::exactWeights(int vertex, const std::string &mesh)
{
    return melNumbers("skinPercent -q -v " + mesh + "Skin " + mesh + ".vtx[" +
                      std::to_string(vertex) + "]");
}

std::string MayaSession::melWeights(const std::string &vertices, const std::string &skinCluster)
{
    std::ostringstream text;
    for (const double weight : melNumbers("skinPercent -q -v " + skinCluster + " " + vertices))
        text << (text.tellp() > 0 ? " " : "") << weight;
    return text.str();
}

std::string MayaSession::weights(int vertex, const std::string &mesh)
{
    return melWeights(mesh + ".vtx[" + std::to_string(vertex) + "]", mesh + "Skin");
}

std::string MayaSession::allWeights(const std::string &mesh)
{
    std::string text;
    const int count = std::stoi(melString("getAttr -size " + mesh + "Skin.wl"));
    for (int vertex = 0; vertex < count; ++vertex)
        text += (vertex > 0 ? "; " : "") + weights(vertex, mesh);
    return text;
}

std::string MayaSession::take(MCommandMessage::MessageType type)
{
    std::string taken;
    taken.swap(shown_[type]);
    return taken;
}

void MayaSession::keepMessage(const MString &message, MCommandMessage::MessageType type, void *self)
{
    std::string &shown = static_cast<MayaSession *>(self)->shown_[type];
    shown += (shown.empty() ? "" : "\n") + std::string(message.asUTF8());
}
