// SPDX-License-Identifier: Apache-2.0
// The one door into the private parts of the API's classes.
//
// Each class of <maya/...> names this class its friend and keeps one member; what the member points
// to is declared in the headers of this folder.
#pragma once

#include <maya/MApiNamespace.h>

namespace host
{

class ApiAccess
{
public:
    // MObject, MFnBase, MDagPath, MPlug, MSelectionList, MCommandResult.
    template <class Handle>
    static auto &body(Handle &handle)
    {
        return handle.body_;
    }
    template <class DagFunctionSet>
    static auto &path(DagFunctionSet &functionSet)
    {
        return functionSet.path_;
    }
    template <class ObjectHandle>
    static auto &object(ObjectHandle &handle)
    {
        return handle.object_;
    }
    template <class ArgumentList>
    static auto &values(ArgumentList &list)
    {
        return list.values_;
    }
    template <class Syntax>
    static auto &table(Syntax &syntax)
    {
        return syntax.table_;
    }
    template <class Parser>
    static auto &parsed(Parser &parser)
    {
        return parser.parsed_;
    }
    template <class Command>
    static auto &context(Command &command)
    {
        return command.context_;
    }
};

} // namespace host
