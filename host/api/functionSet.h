// SPDX-License-Identifier: Apache-2.0
// The members that the headers' declareMFn macros declare, defined alike for every function set.
#pragma once

#include <maya/MFnBase.h>

#include "api/status.h"

// A function set for objects of `kind`: type, name, destructor and the two constructors.
#define DEFINE_FUNCTION_SET(Class, kind)                                                           \
    MFn::Type Class::type() const                                                                  \
    {                                                                                              \
        return kind;                                                                               \
    }                                                                                              \
    const char *Class::className()                                                                 \
    {                                                                                              \
        return #Class;                                                                             \
    }                                                                                              \
    Class::~Class() = default;                                                                     \
    Class::Class(MObject &object, MStatus *ReturnStatus)                                           \
    {                                                                                              \
        host::report(ReturnStatus, setObject(object));                                             \
    }                                                                                              \
    Class::Class(const MObject &object, MStatus *ReturnStatus)                                     \
    {                                                                                              \
        host::report(ReturnStatus, setObject(object));                                             \
    }

// The same for function sets of DAG nodes, which can be made on a path.
#define DEFINE_DAG_FUNCTION_SET(Class, kind)                                                       \
    DEFINE_FUNCTION_SET(Class, kind)                                                               \
    Class::Class() = default;                                                                      \
    Class::Class(const MDagPath &object, MStatus *ret)                                             \
    {                                                                                              \
        host::report(ret, setObject(object));                                                      \
    }
