// SPDX-License-Identifier: Apache-2.0
// The base of all function sets: objects that know how to work on one kind of MObject. Stands in
// for Maya's header of this name; declarations only. Function sets are no values: they are neither
// copied nor pointed to. One made on an object that it does not fit has no object, and its calls
// fail.
#pragma once

#include <maya/MFn.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnBase
{
public:
    virtual ~MFnBase();
    virtual MFn::Type type() const;
    bool hasObj(MFn::Type type) const;
    bool hasObj(const MObject &object) const;
    MObject object(MStatus *ReturnStatus = nullptr) const;
    virtual MStatus setObject(MObject &object);
    virtual MStatus setObject(const MObject &object);
    static const char *className();

protected:
    MFnBase();
    virtual bool objectChanged(MFn::Type type, MStatus *status);

private:
    friend class host::ApiAccess;
    MFnBase(const MFnBase &) = delete;
    MFnBase &operator=(const MFnBase &) = delete;
    MFnBase *operator&() const = delete;

    std::shared_ptr<host::ObjectBody> body_;
};

MAYA_API_NAMESPACE_EXIT

#define declareMinimalMFn(MFnClass)                                                                \
public:                                                                                            \
    virtual MFn::Type type() const;                                                                \
    virtual ~MFnClass();                                                                           \
    static const char *className();                                                                \
                                                                                                   \
private:                                                                                           \
    MFnClass(const MFnClass &) = delete;                                                           \
    MFnClass &operator=(const MFnClass &) = delete;                                                \
    MFnClass *operator&() const = delete

#define declareMFn(MFnClass, MFnParentClass)                                                       \
    declareMinimalMFn(MFnClass);                                                                   \
                                                                                                   \
public:                                                                                            \
    MFnClass() {}                                                                                  \
    MFnClass(MObject &object, MStatus *ReturnStatus = nullptr)

#define declareMFnConstConstructor(MFnClass, MFnParentClass)                                       \
    MFnClass(const MObject &object, MStatus *ReturnStatus = nullptr)

#define declareMFnNoVoidConstructor(MFnClass, MFnParentClass)                                      \
    declareMinimalMFn(MFnClass);                                                                   \
                                                                                                   \
public:                                                                                            \
    MFnClass(MObject &object, MStatus *ReturnStatus = nullptr)

#define declareMFnNoVoidConstructorConstConstructor(MFnClass, MFnParentClass)                      \
    MFnClass(const MObject &object, MStatus *ReturnStatus = nullptr)
