// SPDX-License-Identifier: Apache-2.0
#include <maya/MStatus.h>

#include <maya/MString.h>

namespace
{

struct CodeText {
    MStatus::MStatusCode code;
    const char *text;
};

// "(kFailure): Unexpected Internal Failure" is what Maya prints; the others follow its pattern.
constexpr CodeText kCodeTexts[] = {
    {MStatus::kSuccess, "Success"},
    {MStatus::kFailure, "(kFailure): Unexpected Internal Failure"},
    {MStatus::kInsufficientMemory, "(kInsufficientMemory): Insufficient memory to complete"},
    {MStatus::kInvalidParameter, "(kInvalidParameter): Object is incompatible with this method"},
    {MStatus::kLicenseFailure, "(kLicenseFailure): Application is not licensed"},
    {MStatus::kUnknownParameter, "(kUnknownParameter): Unknown parameter"},
    {MStatus::kNotImplemented, "(kNotImplemented): Not implemented"},
    {MStatus::kNotFound, "(kNotFound): Not found"},
    {MStatus::kEndOfFile, "(kEndOfFile): End of file"},
};

} // namespace

MString MStatus::errorString() const
{
    for (const CodeText &entry : kCodeTexts)
        if (entry.code == statusCode())
            return entry.text;
    return "(unknown status)";
}

void MStatus::clear()
{
    *this = MStatus();
}

void MStatus::perror(const char *text) const
{
    std::cerr << (text ? text : "");
    if (text && *text)
        std::cerr << ": ";
    std::cerr << errorString() << std::endl;
}

void MStatus::perror(const MString &text) const
{
    perror(text.asChar());
}

void MStatus::set(bool status, unsigned char statusCode, unsigned char internalStatusCode)
{
    fStatus = status;
    fStatusCode = statusCode;
    fInternalStatusCode = internalStatusCode;
}
