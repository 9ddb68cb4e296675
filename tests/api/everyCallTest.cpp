// SPDX-License-Identifier: Apache-2.0
// Calls of the API that neither the plug-in nor another test makes, each with an answer that tells
// it from its neighbours.
#include <cmath>
#include <memory>

#include <maya/MArgDatabase.h>
#include <maya/MArgList.h>
#include <maya/MCallbackIdArray.h>
#include <maya/MColor.h>
#include <maya/MCommandResult.h>
#include <maya/MEventMessage.h>
#include <maya/MFileIO.h>
#include <maya/MFnCompoundAttribute.h>
#include <maya/MFnMesh.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnPlugin.h>
#include <maya/MFnSet.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MGlobal.h>
#include <maya/MIntArray.h>
#include <maya/MItDependencyGraph.h>
#include <maya/MItGeometry.h>
#include <maya/MItMeshVertex.h>
#include <maya/MItSelectionList.h>
#include <maya/MModelMessage.h>
#include <maya/MObjectArray.h>
#include <maya/MObjectHandle.h>
#include <maya/MPlugArray.h>
#include <maya/MPointArray.h>
#include <maya/MPxCommand.h>
#include <maya/MQtUtil.h>
#include <maya/MStringArray.h>
#include <maya/MSyntax.h>

#include <QtWidgets/QMainWindow>

#include "api/boundBody.h"

namespace
{

std::string text(const MString &string)
{
    return string.asChar();
}
std::string text(const MStatus &status)
{
    return status ? "ok" : "failed";
}
template <typename Number>
std::string text(Number number)
{
    const std::string digits = std::to_string(double(number));
    return digits.substr(0, digits.find_last_not_of('0') + 1 -
                                (digits.find(".000000") != std::string::npos));
}
template <typename Array>
std::string list(const Array &array)
{
    std::string all;
    for (unsigned int i = 0; i < array.length(); ++i)
        all += (all.empty() ? "" : " ") + text(array[i]);
    return all;
}

struct Row {
    const char *call;
    std::string answer;
    std::string expected;
};

void expectAll(const std::vector<Row> &rows)
{
    for (const Row &row : rows)
        EXPECT_EQ(row.answer, row.expected) << row.call;
}

class everyCall : public BoundBody
{
protected:
    static MPlug plug(const char *nodeName, const char *attribute)
    {
        return MFnDependencyNode(node(nodeName)).findPlug(attribute, false);
    }
};

template <typename... Classes>
void expectNames(const std::vector<const char *> &names)
{
    const std::vector<std::string> actual = {Classes::className()...};
    EXPECT_EQ(actual, std::vector<std::string>(names.begin(), names.end()));
}

// A growing step is kept, whatever it means to the array.
template <typename Array>
void expectSizeIncrement()
{
    Array array;
    array.setSizeIncrement(16);
    EXPECT_EQ(array.sizeIncrement(), 16u);
}

} // namespace

TEST(className, isThatOfTheClass)
{
    expectNames<MArgDatabase, MArgList, MArgParser, MCallbackIdArray, MCommandMessage,
                MCommandResult, MDagPath, MDagPathArray, MDoubleArray, MEventMessage, MFnBase,
                MFnDagNode, MFnDependencyNode, MFnMesh, MFnPlugin, MFnSkinCluster, MGlobal,
                MIntArray>({"MArgDatabase", "MArgList", "MArgParser", "MCallbackIdArray",
                            "MCommandMessage", "MCommandResult", "MDagPath", "MDagPathArray",
                            "MDoubleArray", "MEventMessage", "MFnBase", "MFnDagNode",
                            "MFnDependencyNode", "MFnMesh", "MFnPlugin", "MFnSkinCluster",
                            "MGlobal", "MIntArray"});
    expectNames<MItDependencyGraph, MItGeometry, MItMeshVertex, MItSelectionList, MMessage,
                MModelMessage, MObjectArray, MPlug, MPlugArray, MPoint, MPointArray, MPxCommand,
                MQtUtil, MSelectionList, MStringArray, MSyntax>(
        {"MItDependencyGraph", "MItGeometry", "MItMeshVertex", "MItSelectionList", "MMessage",
         "MModelMessage", "MObjectArray", "MPlug", "MPlugArray", "MPoint", "MPointArray",
         "MPxCommand", "MQtUtil", "MSelectionList", "MStringArray", "MSyntax"});
}

TEST(sizeIncrement, isKept)
{
    expectSizeIncrement<MCallbackIdArray>();
    expectSizeIncrement<MDagPathArray>();
    expectSizeIncrement<MDoubleArray>();
    expectSizeIncrement<MIntArray>();
    expectSizeIncrement<MObjectArray>();
    expectSizeIncrement<MPlugArray>();
    expectSizeIncrement<MPointArray>();
    expectSizeIncrement<MStringArray>();
}

TEST_F(everyCall, ofNodesAndPaths)
{
    mel("createNode transform -n other; parent -add -s bodyShape other; select -cl");
    const MFnDagNode joint(node("joint2"));
    MFnDependencyNode other(node("other"));
    MDagPath one;
    MDagPathArray all, ofFunctionSet;
    MDagPath::getAllPathsTo(node("bodyShape"), all);
    MFnDagNode(node("bodyShape")).getAllPaths(ofFunctionSet);
    MPlugArray connections;
    MFnDependencyNode(node("joint2")).getConnections(connections);
    MObject cluster = node("skinCluster1");
    MObjectArray sets, components;
    MFnDagNode(node("bodyShape")).getConnectedSetsAndMembers(0, sets, components, true);
    expectAll({
        {"MDagPath::getAPathTo", text(MDagPath::getAPathTo(node("joint3"), one)), "ok"},
        {"its path", text(one.fullPathName()), "|joint1|joint2|joint3"},
        {"MDagPath::getAllPathsTo", text(all.length()), "2"},
        {"MDagPath::childCount", text(path("joint1").childCount()), "1"},
        {"MDagPath::isInstanced", text(path("bodyShape").isInstanced()), "1"},
        {"MFnDagNode::parentCount", text(MFnDagNode(node("bodyShape")).parentCount()), "2"},
        {"MFnDagNode::childCount", text(joint.childCount()), "1"},
        {"MFnDagNode::getPath", text(joint.getPath(one)), "ok"},
        {"its path", text(one.partialPathName()), "joint2"},
        {"MFnDagNode::getAllPaths", text(ofFunctionSet.length()), "2"},
        {"MFnDagNode::isIntermediateObject",
         text(MFnDagNode(node("bodyShapeOrig")).isIntermediateObject()), "1"},
        {"MFnDagNode::activeColor", text(joint.activeColor() == joint.dormantColor()), "0"},
        {"MFnDagNode::hiliteColor", text(joint.hiliteColor() == joint.dormantColor()), "0"},
        {"MFnDagNode::usingHiliteColor", text(joint.usingHiliteColor()), "0"},
        {"MFnDagNode::getConnectedSetsAndMembers", text(sets.length()), "1"},
        {"its set", text(MFnSet(sets[0]).name()), "initialShadingGroup"},
        {"MFnDependencyNode::typeName", text(other.typeName()), "transform"},
        {"MFnDependencyNode::setName", text(other.setName("body")), "body1"},
        {"MFnDependencyNode::getConnections", text(connections.length() > 4), "1"},
        {"MFnDependencyNode::attributeCount", text(joint.attributeCount() > 40), "1"},
        {"MFnDependencyNode::isFromReferencedFile", text(joint.isFromReferencedFile()), "0"},
        {"MFnBase::hasObj", text(joint.hasObj(MFn::kJoint)), "1"},
        {"MFnBase::hasObj, a mesh", text(joint.hasObj(node("bodyShape"))), "1"},
        {"MObject::apiTypeStr", cluster.apiTypeStr(), "kSkinClusterFilter"},
        {"MObjectHandle::objectRef", text(MObjectHandle(cluster).objectRef() == cluster), "1"},
        {"MObjectHandle::hashCode",
         text(MObjectHandle(cluster).hashCode() == MObjectHandle(cluster).hashCode()), "1"},
    });
}

TEST_F(everyCall, ofPlugs)
{
    const MPlug translate = plug("joint2", "translate");
    MPlug matrix = plug("skinCluster1", "matrix");
    MPlug blend = plug("skinCluster1", "blendWeights");
    MPlug rotateX = plug("joint2", "rotateX");
    MPlug changing = rotateX;
    MPlug order = plug("joint2", "rotateOrder");
    MPlug radius = plug("joint2", "radius");
    MObject attribute = plug("joint2", "scaleX").attribute();
    mel("connectAttr joint1.tx joint2.rx");
    expectAll({
        {"MPlug::isNetworked", text(translate.isNetworked()), "0"},
        {"MPlug::isCompound", text(translate.isCompound()), "1"},
        {"MPlug::isChild", text(rotateX.isChild()), "1"},
        {"MPlug::isSource", text(plug("joint1", "tx").isSource()), "1"},
        {"MPlug::isDestination", text(rotateX.isDestination()), "1"},
        {"MPlug::isFromReferencedFile", text(rotateX.isFromReferencedFile()), "0"},
        {"MPlug::numChildren", text(translate.numChildren()), "3"},
        {"MPlug::evaluateNumElements", text(matrix.evaluateNumElements()), "3"},
        {"MPlug::numConnectedElements", text(matrix.numConnectedElements()), "3"},
        {"MPlug::numConnectedChildren", text(plug("joint2", "rotate").numConnectedChildren()), "1"},
        {"MPlug::connectionByPhysicalIndex", text(matrix.connectionByPhysicalIndex(2).name()),
         "skinCluster1.matrix[2]"},
        {"MPlug::setAttribute", text(changing.setAttribute(attribute)), "ok"},
        {"its plug", text(changing.name()), "joint2.scaleX"},
        {"MPlug::setShort", text(order.setShort(3)), "ok"},
        {"MPlug::asShort", text(order.asShort()), "3"},
        {"MPlug::setInt64", text(order.setInt64(4)), "ok"},
        {"MPlug::asInt64", text(order.asInt64()), "4"},
        {"MPlug::setChar", text(order.setChar(2)), "ok"},
        {"MPlug::asChar", text(int(order.asChar())), "2"},
        {"MPlug::setFloat", text(radius.setFloat(0.5f)), "ok"},
        {"MPlug::asFloat", text(radius.asFloat()), "0.5"},
        {"MPlug::setNumElements", text(blend.setNumElements(4)), "ok"},
        {"its elements", text(blend.numElements()), "4"},
    });
}

TEST_F(everyCall, ofAttributes)
{
    MFnNumericAttribute number;
    const MObject size = number.create("size", "sz", MFnNumericData::kDouble, 2.0);
    expectAll({
        {"setMin, setMax, setDefault",
         text(number.setMin(0)) + text(number.setMax(9)) + text(number.setDefault(3.0)), "okokok"},
        {"unitType", text(number.unitType() == MFnNumericData::kDouble), "1"},
        {"isReadable, isWritable, isConnectable, isStorable, isCached, indexMatters",
         text(number.isReadable()) + text(number.isWritable()) + text(number.isConnectable()) +
             text(number.isStorable()) + text(number.isCached()) + text(number.indexMatters()),
         "111111"},
        {"isKeyable, isChannelBoxFlagSet, isHidden, usesArrayDataBuilder, internal",
         text(number.isKeyable()) + text(number.isChannelBoxFlagSet()) + text(number.isHidden()) +
             text(number.usesArrayDataBuilder()) + text(number.internal()),
         "00000"},
        {"setReadable ... setIndexMatters",
         text(number.setReadable(false)) + text(number.setWritable(false)) +
             text(number.setConnectable(false)) + text(number.setStorable(false)) +
             text(number.setCached(false)) + text(number.setIndexMatters(false)),
         "okokokokokok"},
        {"setKeyable ... setInternal",
         text(number.setKeyable(true)) + text(number.setChannelBox(true)) +
             text(number.setHidden(true)) + text(number.setUsesArrayDataBuilder(true)) +
             text(number.setInternal(true)),
         "okokokokok"},
        {"the first six again",
         text(number.isReadable()) + text(number.isWritable()) + text(number.isConnectable()) +
             text(number.isStorable()) + text(number.isCached()) + text(number.indexMatters()),
         "000000"},
        {"the first three of the others again",
         text(number.isKeyable()) + text(number.isChannelBoxFlagSet()) + text(number.isHidden()),
         "111"},
        {"setDisconnectBehavior", text(number.setDisconnectBehavior(MFnAttribute::kNothing)), "ok"},
        {"disconnectBehavior", text(number.disconnectBehavior() == MFnAttribute::kNothing), "1"},
        {"getAddAttrCmd", text(text(number.getAddAttrCmd(true)).find("size") != std::string::npos),
         "1"},
    });
    MFnTypedAttribute typed;
    const MObject note = typed.create("note", "nt", MFnData::kString, MObject::kNullObj);
    MFnCompoundAttribute compound;
    compound.create("both", "bo");
    compound.addChild(size);
    compound.addChild(note);
    expectAll({
        {"MFnTypedAttribute::attrType", text(typed.attrType() == MFnData::kString), "1"},
        {"MFnCompoundAttribute::numChildren", text(compound.numChildren()), "2"},
        {"MFnCompoundAttribute::removeChild", text(compound.removeChild(size)), "ok"},
        {"numChildren again", text(compound.numChildren()), "1"},
    });
}

TEST_F(everyCall, ofMeshesAndComponents)
{
    const MFnMesh mesh(shape_);
    MPoint point;
    MIntArray corners;
    mesh.getPoint(2, point);
    mesh.getPolygonVertices(0, corners);
    MObject some = vertices({1, 2});
    MObject same = vertices({1, 2});
    MFnSingleIndexedComponent component(some);
    MFnSingleIndexedComponent whole;
    whole.create(MFn::kMeshVertComponent);
    int count = 0;
    MSelectionList affected;
    MDoubleArray weights, blend;
    skin_.getPointsAffectedByInfluence(path("joint3"), affected, weights);
    const MDoubleArray two(2, 0.25);
    const MStatus blended = skin_.setBlendWeights(shape_, some, two);
    skin_.getBlendWeights(shape_, some, blend);
    expectAll({
        {"MFnMesh::numPolygons", text(mesh.numPolygons()), "18"},
        {"MFnMesh::getPoint", text(point.x) + " " + text(point.y), "-1 -1"},
        {"MFnMesh::getPolygonVertices", list(corners), "0 1 3 2"},
        {"MFnComponent::componentType", text(component.componentType() == MFn::kMeshVertComponent),
         "1"},
        {"MFnComponent::isEqual", text(component.isEqual(same)), "1"},
        {"MFnComponent::hasWeights", text(component.hasWeights()), "0"},
        {"MFnComponent::setComplete", text(component.setComplete(true)), "ok"},
        {"setCompleteData", text(whole.setCompleteData(20)), "ok"},
        {"getCompleteData", text(whole.getCompleteData(count)), "ok"},
        {"its number", text(count), "20"},
        {"getPointsAffectedByInfluence", text(affected.length()), "1"},
        {"its weights", text(weights.length() > 0 && weights.length() <= 20), "1"},
        {"setBlendWeights", text(blended), "ok"},
        {"getBlendWeights", list(blend), "0.25 0.25"},
        {"inputShapeAtIndex", text(MFnDagNode(skin_.inputShapeAtIndex(0)).name()), "bodyShapeOrig"},
        {"outputShapeAtIndex", text(MFnDagNode(skin_.outputShapeAtIndex(0)).name()), "bodyShape"},
        {"numOutputConnections", text(skin_.numOutputConnections()), "1"},
        {"indexForOutputConnection", text(skin_.indexForOutputConnection(0)), "0"},
        {"groupIdAtIndex", text(skin_.groupIdAtIndex(0) < 100), "1"},
        {"setEnvelope", text(skin_.setEnvelope(0.5f)), "ok"},
        {"envelope", text(skin_.envelope()), "0.5"},
    });
}

TEST_F(everyCall, ofWalksAndLists)
{
    MObject shape = node("bodyShape");
    MItDependencyGraph walk(shape, MFn::kSkinClusterFilter, MItDependencyGraph::kUpstream,
                            MItDependencyGraph::kDepthFirst, MItDependencyGraph::kPlugLevel);
    MObjectArray way;
    walk.getNodePath(way);
    mel("select body.vtx[2:3] joint1");
    MSelectionList selected;
    MGlobal::getActiveSelectionList(selected);
    MItSelectionList item(selected);
    MStringArray names;
    item.getStrings(names);
    MSelectionList toggled;
    expectAll({
        {"MItDependencyGraph::thisPlug",
         text(text(walk.thisPlug().name()).find("skinCluster1.") == 0), "1"},
        {"previousPlug", text(text(walk.previousPlug().name()).find("bodyShape.") == 0), "1"},
        {"getNodePath", text(way.length() >= 2), "1"},
        {"enablePruningOnFilter", text(walk.enablePruningOnFilter()), "ok"},
        {"disablePruningOnFilter", text(walk.disablePruningOnFilter()), "ok"},
        {"prune", text(walk.prune()), "ok"},
        {"MItSelectionList::getStrings", list(names), "body.vtx[2:3]"},
        {"hasComponents", text(item.hasComponents()), "1"},
        {"setFilter", text(item.setFilter(MFn::kJoint)), "ok"},
        {"MSelectionList::toggle", text(toggled.toggle(path("joint1"))), "ok"},
        {"its length", text(toggled.length()), "1"},
        {"toggle again", text(toggled.toggle(path("joint1"))), "ok"},
        {"its length", text(toggled.length()), "0"},
    });
}

TEST_F(everyCall, ofTheProgram)
{
    bool exists = true;
    MCommandResult result;
    MGlobal::executeCommand("getAttr joint3.t", result);
    MDoubleArray numbers;
    result.getResult(numbers);
    MGlobal::setTrackSelectionOrderEnabled(true);
    const bool isTracked = MGlobal::trackSelectionOrderEnabled();
    MGlobal::setTrackSelectionOrderEnabled(false);
    MGlobal::selectByName("joint2", MGlobal::kReplaceList);
    MGlobal::setOptionVarValue("kxInt", 3);
    MGlobal::setOptionVarValue("kxReal", 0.5);
    MGlobal::setOptionVarValue("kxText", MString("abc"));
    expectAll({
        {"MGlobal::mayaVersion", text(MGlobal::mayaVersion()), "2017"},
        {"MGlobal::apiVersion", text(MGlobal::apiVersion()), "201700"},
        {"MGlobal::mayaState", text(MGlobal::mayaState() == MGlobal::kLibraryApp), "1"},
        {"MGlobal::selectByName", melStrings("ls -sl"), "joint2"},
        {"MGlobal::trackSelectionOrderEnabled", text(isTracked), "1"},
        {"MGlobal::isUndoing", text(MGlobal::isUndoing()), "0"},
        {"MGlobal::isRedoing", text(MGlobal::isRedoing()), "0"},
        {"MGlobal::optionVarIntValue", text(MGlobal::optionVarIntValue("kxInt")), "3"},
        {"MGlobal::optionVarDoubleValue", text(MGlobal::optionVarDoubleValue("kxReal")), "0.5"},
        {"MGlobal::optionVarStringValue", text(MGlobal::optionVarStringValue("kxText")), "abc"},
        {"of no option", text(MGlobal::optionVarIntValue("kxNone", &exists)), "0"},
        {"that it exists", text(exists), "0"},
        {"MGlobal::sourceFile", text(MGlobal::sourceFile("nobody.mel")), "failed"},
        {"MGlobal::executeCommandOnIdle", text(MGlobal::executeCommandOnIdle("select -cl")), "ok"},
        {"MCommandResult::resultType", text(result.resultType() == MCommandResult::kDoubleArray),
         "1"},
        {"MCommandResult::getResult", list(numbers), "0 2 0"},
        {"MFileIO::setCurrentFile", text(MFileIO::setCurrentFile("/nowhere/rig.ma")), "ok"},
        {"MFileIO::currentFile", text(MFileIO::currentFile()), "/nowhere/rig.ma"},
        {"MFileIO::fileType", text(MFileIO::fileType()), "mayaAscii"},
        {"MFileIO::isWritingFile", text(MFileIO::isWritingFile()), "0"},
        {"MFileIO::isOpeningFile", text(MFileIO::isOpeningFile()), "0"},
        {"MFileIO::newFile", text(MFileIO::newFile(true)), "ok"},
        {"its scene", melString("objExists joint1"), "0"},
        {"MMessage::currentCallbackId", text(MMessage::currentCallbackId()), "0"},
        {"MFnPlugin::findPlugin", text(MFnPlugin::findPlugin("nobody").isNull()), "1"},
    });
}

TEST_F(everyCall, ofMessages)
{
    std::string seen;
    MCallbackIdArray ids;
    ids.append(MModelMessage::addCallback(
        MModelMessage::kActiveListModified,
        [](void *data) { *static_cast<std::string *>(data) += "list;"; }, &seen));
    ids.append(MCommandMessage::addCommandCallback(
        [](const MString &command, void *data) {
            *static_cast<std::string *>(data) += text(command) + ";";
        },
        &seen));
    MGlobal::executeCommand("select joint1", true, true);
    EXPECT_TRUE(MMessage::removeCallbacks(ids));
    MGlobal::executeCommand("select joint2", true, true);
    EXPECT_NE(seen.find("list;"), std::string::npos) << seen;
    EXPECT_NE(seen.find("select joint1;"), std::string::npos) << seen;
    EXPECT_EQ(seen.find("joint2"), std::string::npos) << seen;
}

TEST(commandCall, readsWhatTheSyntaxSays)
{
    MSyntax syntax;
    syntax.addFlag("-b", "-bool", MSyntax::kBoolean);
    syntax.addFlag("-i", "-integer", MSyntax::kLong);
    syntax.addFlag("-d", "-double", MSyntax::kDouble);
    syntax.addFlag("-s", "-string", MSyntax::kString);
    syntax.setObjectType(MSyntax::kStringObjects);
    syntax.setMinObjects(1);
    syntax.setMaxObjects(1);
    syntax.enableEdit(true);
    MArgList arguments;
    const char *const kWords[] = {"-b", "1", "-i", "7", "-d", "0.5", "-s", "word", "thing"};
    for (const char *word : kWords)
        arguments.addArg(MString(word));
    MStatus status, tooMany;
    const MArgParser parser(syntax, arguments, &status);
    arguments.addArg(MString("another"));
    const MArgParser refused(syntax, arguments, &tooMany);
    expectAll({
        {"MArgParser", text(status) + text(tooMany), "okfailed"},
        {"flagArgumentBool", text(parser.flagArgumentBool("-b", 0)), "1"},
        {"flagArgumentInt", text(parser.flagArgumentInt("-i", 0)), "7"},
        {"flagArgumentDouble", text(parser.flagArgumentDouble("-d", 0)), "0.5"},
        {"flagArgumentString", text(parser.flagArgumentString("-s", 0)), "word"},
        {"MArgList::flagIndex", text(arguments.flagIndex("d", "double")), "4"},
        {"MSyntax::canQuery", text(syntax.canQuery()), "0"},
        {"MSyntax::canEdit", text(syntax.canEdit()), "1"},
    });
}

TEST(commandCall, keepsWhatACommandSays)
{
    struct Command : MPxCommand {
    } command;
    MPxCommand::setResult("old");
    MPxCommand::clearResult();
    const bool isCleared = MPxCommand::currentResultType() == MPxCommand::kNoArg;
    MPxCommand::appendToResult(1);
    const bool isArray = MPxCommand::isCurrentResultArray();
    MPxCommand::appendToResult(2);
    expectAll({
        {"hasSyntax", text(command.hasSyntax()), "0"},
        {"setHistoryOn", text(command.setHistoryOn(false)), "ok"},
        {"isHistoryOn", text(command.isHistoryOn()), "0"},
        {"setCommandString", text(command.setCommandString("number 1")), "ok"},
        {"commandString", text(command.commandString()), "number 1"},
        {"clearResult", text(isCleared), "1"},
        {"isCurrentResultArray, of one and of two",
         text(isArray) + text(MPxCommand::isCurrentResultArray()), "11"},
        {"currentResultType", text(MPxCommand::currentResultType() == MPxCommand::kLong), "1"},
    });
    MPxCommand::clearResult();
}

TEST_F(everyCall, ofPlugins)
{
    const std::string file = API_TEST_PLUGIN;
    mel("loadPlugin \"" + file + "\"");
    MObject object = MFnPlugin::findPlugin("apiTestPlugin");
    {
        MFnPlugin plugin(object);
        expectAll({
            {"vendor", text(plugin.vendor()), "Korvex tests"},
            {"apiVersion", text(plugin.apiVersion()), "Any"},
            {"loadPath", text(plugin.loadPath()), file.substr(0, file.rfind('/'))},
            {"setVersion", text(plugin.setVersion("1.6")), "ok"},
            {"setName", text(plugin.setName("renamed")), "ok"},
            {"their answers", melString("pluginInfo -q -version renamed"), "1.6"},
        });
    }
    object = MObject();
    mel("unloadPlugin renamed");
}

TEST(textCall, worksOnTheText)
{
    MString words("aXbXc");
    MString wide;
    expectAll({
        {"indexW", text(words.indexW("X")), "1"},
        {"rindexW", text(words.rindexW("X")), "3"},
        {"toUpperCase", text(MString("\xc3\xa4z").toUpperCase().length()), "3"},
        {"toLowerCase", text(MString("ABC").toLowerCase()), "abc"},
        {"isShort, asShort", text(MString("12").isShort()) + text(MString("12").asShort()), "112"},
        {"isUnsigned, asUnsigned",
         text(MString("-1").isUnsigned()) + text(MString("41").asUnsigned()), "041"},
        {"isFloat", text(MString("1.5").isFloat()) + text(MString("x").isFloat()), "10"},
        {"setWChar", text(wide.setWChar(L"\u00e4")), "ok"},
        {"its bytes", text(wide.length()), "2"},
        {"asWChar", text(wide.asWChar()[0] == L'\u00e4'), "1"},
        {"MStatus::errorString", text(MStatus(MStatus::kFailure).errorString()),
         "(kFailure): Unexpected Internal Failure"},
        {"MStatus::statusCode", text(MStatus(MStatus::kNotFound).statusCode()), "7"},
    });
    testing::internal::CaptureStderr();
    MStatus(MStatus::kFailure).perror("here");
    EXPECT_NE(testing::internal::GetCapturedStderr().find("here"), std::string::npos);
}

TEST(widgetCall, findsWidgetsByName)
{
    QMainWindow window;
    window.setObjectName("kxWindow");
    QWidget field(&window);
    field.setObjectName("kxField");
    EXPECT_EQ(MQtUtil::findWindow("kxWindow"), &window);
    EXPECT_EQ(MQtUtil::findControl("kxWindow|kxField"), &field);
    EXPECT_EQ(MQtUtil::findWindow("kxField"), nullptr);
    EXPECT_EQ(MQtUtil::findMenuItem("kxNone"), nullptr);
    EXPECT_EQ(MQtUtil::toQString(MQtUtil::toMString(QString::fromUtf8("\xc3\xa4"))),
              QString::fromUtf8("\xc3\xa4"));
}
