// SPDX-License-Identifier: Apache-2.0
// The selection, MEL, messages and the state of Maya. Stands in for Maya's header of this name;
// declarations only. A result of executeCommand is an int, a double, an MString or an array of
// them; other arithmetic types would convert to the bool `displayEnabled`, so most of them are
// refused.
#pragma once

#include <maya/MDoubleArray.h>
#include <maya/MIntArray.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include <type_traits>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MGlobal
{
public:
    static MString mayaVersion();
    static int apiVersion();
    enum MMayaState { kInteractive, kBatch, kLibraryApp, kBaseUIMode };
    static MMayaState mayaState(MStatus *ReturnStatus = nullptr);
    enum ListAdjustment {
        kReplaceList,
        kXORWithList,
        kAddToList,
        kRemoveFromList,
        kAddToHeadOfList
    };
    static MStatus getActiveSelectionList(MSelectionList &dest,
                                          bool orderedSelectionIfAvailable = false);
    static MStatus setActiveSelectionList(const MSelectionList &src, ListAdjustment = kReplaceList);
    static MStatus getHiliteList(MSelectionList &dest);
    static MStatus setHiliteList(MSelectionList &src);
    static MStatus selectCommand(const MSelectionList &src, ListAdjustment = kReplaceList);
    static MStatus selectByName(const MString &name, ListAdjustment = kAddToList);
    static MStatus clearSelectionList();
    static MStatus getSelectionListByName(const MString &name, MSelectionList &list);
    static bool trackSelectionOrderEnabled(MStatus *ReturnStatus = nullptr);
    static MStatus setTrackSelectionOrderEnabled(bool enable);
    static MStatus sourceFile(const MString &fileName);
    static MStatus executeCommandOnIdle(const MString &command, bool displayEnabled = false);
    static MStatus executeCommand(const MString &command, bool displayEnabled = false,
                                  bool undoEnabled = false);
    static MStatus executeCommand(const MString &command, MCommandResult &result,
                                  bool displayEnabled = false, bool undoEnabled = false);
    static MStatus executeCommand(const MString &command, int &result, bool displayEnabled = false,
                                  bool undoEnabled = false);
    static MStatus executeCommand(const MString &command, MIntArray &result,
                                  bool displayEnabled = false, bool undoEnabled = false);
    static MStatus executeCommand(const MString &command, double &result,
                                  bool displayEnabled = false, bool undoEnabled = false);
    static MStatus executeCommand(const MString &command, MDoubleArray &result,
                                  bool displayEnabled = false, bool undoEnabled = false);
    static MStatus executeCommand(const MString &command, MString &result,
                                  bool displayEnabled = false, bool undoEnabled = false);
    static MStatus executeCommand(const MString &command, MStringArray &result,
                                  bool displayEnabled = false, bool undoEnabled = false);
    template <typename Number>
    static typename std::enable_if<std::is_arithmetic<Number>::value &&
                                       !std::is_const<Number>::value &&
                                       !std::is_same<Number, bool>::value,
                                   MStatus>::type
    executeCommand(const MString &command, Number &result, bool displayEnabled = false,
                   bool undoEnabled = false) = delete;
    static MString executeCommandStringResult(const MString &command, bool displayEnabled = false,
                                              bool undoEnabled = false,
                                              MStatus *ResultStatus = nullptr);
    static void displayInfo(const MString &theMessage);
    static void displayWarning(const MString &theWarning);
    static void displayError(const MString &theError);
    static bool isUndoing();
    static bool isRedoing();
    static int optionVarIntValue(const MString &name, bool *exists = nullptr);
    static double optionVarDoubleValue(const MString &name, bool *exists = nullptr);
    static MString optionVarStringValue(const MString &name, bool *exists = nullptr);
    static bool setOptionVarValue(const MString &name, int value);
    static bool setOptionVarValue(const MString &name, double value);
    static bool setOptionVarValue(const MString &name, MString value);
    static MStatus deleteNode(MObject &);
    static const char *className();

private:
    ~MGlobal();
};

MAYA_API_NAMESPACE_EXIT
