// SPDX-License-Identifier: Apache-2.0
// The outcome of a call. Stands in for Maya's header of this name; declarations only, but for the
// few lines that every call of the API passes through. A function that takes an `MStatus
// *ReturnStatus` writes to it on success too.
#pragma once

#include <maya/MIOStream.h>
#include <maya/MTypes.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MStatus
{
public:
    enum MStatusCode {
        kSuccess = 0,
        kFailure,
        kInsufficientMemory,
        kInvalidParameter,
        kLicenseFailure,
        kUnknownParameter,
        kNotImplemented,
        kNotFound,
        kEndOfFile
    };

    MStatus() : fStatusCode(kSuccess), fInternalStatusCode(0), fStatus(true) {}
    MStatus(MStatusCode code)
        : fStatusCode(static_cast<unsigned char>(code)), fInternalStatusCode(0),
          fStatus(code == kSuccess)
    {
    }
    MStatus(const MStatus &) = default;
    MStatus &operator=(const MStatus &) = default;

    bool operator==(const MStatus &other) const { return fStatusCode == other.fStatusCode; }
    bool operator==(const MStatusCode code) const { return fStatusCode == code; }
    bool operator!=(const MStatus &other) const { return fStatusCode != other.fStatusCode; }
    bool operator!=(const MStatusCode code) const { return fStatusCode != code; }
    bool error() const { return !fStatus; }
    operator bool() const { return fStatus; }
    MStatusCode statusCode() const { return static_cast<MStatusCode>(fStatusCode); }
    MString errorString() const;
    void clear();
    void perror(const char *text) const; // to the standard error stream
    void perror(const MString &text) const;
    void set(bool status, unsigned char statusCode, unsigned char internalStatusCode);

    friend bool operator==(const MStatusCode code, const MStatus &status) { return status == code; }
    friend bool operator!=(const MStatusCode code, const MStatus &status) { return status != code; }

private:
    unsigned char fStatusCode;
    unsigned char fInternalStatusCode;
    bool fStatus; // true: success
};

MAYA_API_NAMESPACE_EXIT

#ifndef MNoMSTypedef
typedef MStatus MS;
#endif

#define MAYA_REPORT_STATUS(_status, _exit)                                                         \
    {                                                                                              \
        MStatus _maya_status = (_status);                                                          \
        if (MStatus::kSuccess != _maya_status) {                                                   \
            cerr << "\nAPI error detected in " << __FILE__ << " at line " << __LINE__ << endl;     \
            _maya_status.perror("");                                                               \
            _exit;                                                                                 \
        }                                                                                          \
    }
#define CHECK_MSTATUS(_status) MAYA_REPORT_STATUS(_status, (void)0)
#define CHECK_MSTATUS_AND_RETURN(_status, _retVal) MAYA_REPORT_STATUS(_status, return (_retVal))
#define CHECK_MSTATUS_AND_RETURN_IT(_status) CHECK_MSTATUS_AND_RETURN((_status), (_status))
