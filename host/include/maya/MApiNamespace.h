// SPDX-License-Identifier: Apache-2.0
// The namespace of the API's classes, and the names that plug-ins use for them. As in Maya since
// 2018 the classes live in a namespace of the release and are brought to the global one by
// using-declarations: a `class MObject;` of one's own is another class, and an error.
#pragma once

#define MAYA_API_NAMESPACE_ENTER                                                                   \
    namespace Autodesk                                                                             \
    {                                                                                              \
    namespace Maya                                                                                 \
    {                                                                                              \
    namespace OpenMaya201700                                                                       \
    {
#define MAYA_API_NAMESPACE_EXIT                                                                    \
    }                                                                                              \
    }                                                                                              \
    }

// What the private parts of the classes point to. Only the host knows more about them.
namespace host
{
class ApiAccess;
class ArgumentValues;
class CommandContext;
class GraphWalk;
class ObjectBody;
class ParsedArguments;
class PathBody;
class PlugBody;
class PointWalk;
class ResultBody;
class SelectionBody;
class SelectionWalk;
class SyntaxTable;
} // namespace host

MAYA_API_NAMESPACE_ENTER

class MArgDatabase;
class MArgList;
class MArgParser;
class MCallbackIdArray;
class MColor;
class MCommandMessage;
class MCommandResult;
class MDagPath;
class MDagPathArray;
class MDataHandle;
class MDoubleArray;
class MEventMessage;
class MFileIO;
class MFn;
class MFnAttribute;
class MFnBase;
class MFnComponent;
class MFnCompoundAttribute;
class MFnDagNode;
class MFnData;
class MFnDependencyNode;
class MFnGeometryFilter;
class MFnMesh;
class MFnNumericAttribute;
class MFnNumericData;
class MFnPlugin;
class MFnSet;
class MFnSingleIndexedComponent;
class MFnSkinCluster;
class MFnStringArrayData;
class MFnStringData;
class MFnTypedAttribute;
class MGlobal;
class MIntArray;
class MItDependencyGraph;
class MItGeometry;
class MItMeshVertex;
class MItSelectionList;
class MLibrary;
class MMessage;
class MModelMessage;
class MObject;
class MObjectArray;
class MObjectHandle;
class MPlug;
class MPlugArray;
class MPoint;
class MPointArray;
class MPxCommand;
class MQtUtil;
class MSelectionList;
class MSpace;
class MStatus;
class MString;
class MStringArray;
class MSyntax;

MAYA_API_NAMESPACE_EXIT

using Autodesk::Maya::OpenMaya201700::MArgDatabase;
using Autodesk::Maya::OpenMaya201700::MArgList;
using Autodesk::Maya::OpenMaya201700::MArgParser;
using Autodesk::Maya::OpenMaya201700::MCallbackIdArray;
using Autodesk::Maya::OpenMaya201700::MColor;
using Autodesk::Maya::OpenMaya201700::MCommandMessage;
using Autodesk::Maya::OpenMaya201700::MCommandResult;
using Autodesk::Maya::OpenMaya201700::MDagPath;
using Autodesk::Maya::OpenMaya201700::MDagPathArray;
using Autodesk::Maya::OpenMaya201700::MDataHandle;
using Autodesk::Maya::OpenMaya201700::MDoubleArray;
using Autodesk::Maya::OpenMaya201700::MEventMessage;
using Autodesk::Maya::OpenMaya201700::MFileIO;
using Autodesk::Maya::OpenMaya201700::MFn;
using Autodesk::Maya::OpenMaya201700::MFnAttribute;
using Autodesk::Maya::OpenMaya201700::MFnBase;
using Autodesk::Maya::OpenMaya201700::MFnComponent;
using Autodesk::Maya::OpenMaya201700::MFnCompoundAttribute;
using Autodesk::Maya::OpenMaya201700::MFnDagNode;
using Autodesk::Maya::OpenMaya201700::MFnData;
using Autodesk::Maya::OpenMaya201700::MFnDependencyNode;
using Autodesk::Maya::OpenMaya201700::MFnGeometryFilter;
using Autodesk::Maya::OpenMaya201700::MFnMesh;
using Autodesk::Maya::OpenMaya201700::MFnNumericAttribute;
using Autodesk::Maya::OpenMaya201700::MFnNumericData;
using Autodesk::Maya::OpenMaya201700::MFnPlugin;
using Autodesk::Maya::OpenMaya201700::MFnSet;
using Autodesk::Maya::OpenMaya201700::MFnSingleIndexedComponent;
using Autodesk::Maya::OpenMaya201700::MFnSkinCluster;
using Autodesk::Maya::OpenMaya201700::MFnStringArrayData;
using Autodesk::Maya::OpenMaya201700::MFnStringData;
using Autodesk::Maya::OpenMaya201700::MFnTypedAttribute;
using Autodesk::Maya::OpenMaya201700::MGlobal;
using Autodesk::Maya::OpenMaya201700::MIntArray;
using Autodesk::Maya::OpenMaya201700::MItDependencyGraph;
using Autodesk::Maya::OpenMaya201700::MItGeometry;
using Autodesk::Maya::OpenMaya201700::MItMeshVertex;
using Autodesk::Maya::OpenMaya201700::MItSelectionList;
using Autodesk::Maya::OpenMaya201700::MLibrary;
using Autodesk::Maya::OpenMaya201700::MMessage;
using Autodesk::Maya::OpenMaya201700::MModelMessage;
using Autodesk::Maya::OpenMaya201700::MObject;
using Autodesk::Maya::OpenMaya201700::MObjectArray;
using Autodesk::Maya::OpenMaya201700::MObjectHandle;
using Autodesk::Maya::OpenMaya201700::MPlug;
using Autodesk::Maya::OpenMaya201700::MPlugArray;
using Autodesk::Maya::OpenMaya201700::MPoint;
using Autodesk::Maya::OpenMaya201700::MPointArray;
using Autodesk::Maya::OpenMaya201700::MPxCommand;
using Autodesk::Maya::OpenMaya201700::MQtUtil;
using Autodesk::Maya::OpenMaya201700::MSelectionList;
using Autodesk::Maya::OpenMaya201700::MSpace;
using Autodesk::Maya::OpenMaya201700::MStatus;
using Autodesk::Maya::OpenMaya201700::MString;
using Autodesk::Maya::OpenMaya201700::MStringArray;
using Autodesk::Maya::OpenMaya201700::MSyntax;
