// SPDX-License-Identifier: Apache-2.0
// Text. Stands in for Maya's header of this name; declarations only. The host keeps UTF-8, and its
// "local 8-bit encoding" is UTF-8 too. Numbers are appended as `%g` prints them, with a point in
// every locale. There is no conversion from std::size_t: cast to int or unsigned int.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <memory>
#include <string>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MString
{
public:
    MString();
    MString(const char *);
    MString(const wchar_t *);
    MString(const char *, int charLength);
    MString(const wchar_t *, int wcharLength);
    MString(const MString &);
    ~MString();
    MString &operator+=(const MString &);
    MString &operator+=(const char *);
    MString &operator+=(double);
    MString &operator+=(int);
    MString &operator+=(unsigned int);
    MString &operator+=(float);
    MString &operator=(const MString &);
    MString &operator=(const char *);
    MString &operator=(double);
    bool operator==(const MString &) const;
    bool operator==(const char *) const;
    bool operator!=(const MString &) const;
    bool operator!=(const char *) const;
    MString operator+(const MString &) const;
    MString operator+(const char *) const;
    MString operator+(double) const;
    MStatus set(const char *);
    MStatus setUTF8(const char *);
    MStatus setWChar(const wchar_t *);
    MStatus set(const char *, int charLength);
    MStatus set(double value);
    MStatus set(double value, int precision);
    const char *asChar() const;
    const char *asUTF8() const;
    const wchar_t *asWChar() const;
    unsigned int length() const;
    unsigned int numChars() const;
    void clear();
    int index(char) const;
    int rindex(char) const;
    int indexW(const MString &) const;
    int rindexW(const MString &) const;
    MStatus split(char, MStringArray &) const;
    MString substring(int start, int end) const;
    MString substringW(int start, int end) const;
    MString &toUpperCase();
    MString &toLowerCase();
    bool isShort() const;
    short asShort() const;
    bool isInt() const;
    int asInt() const;
    bool isUnsigned() const;
    unsigned int asUnsigned() const;
    bool isFloat() const;
    float asFloat() const;
    bool isDouble() const;
    double asDouble() const;
    MStatus format(const MString &fmt, const MStringArray &args);
    MStatus substitute(const MString &src, const MString &target);
    MStatus substituteFirst(const MString &src, const MString &target);
    friend OPENMAYA_EXPORT std::ostream &operator<<(std::ostream &, const MString &);
    friend OPENMAYA_EXPORT MString operator+(const char *, const MString &);

private:
    std::string text_;                           // UTF-8
    mutable std::unique_ptr<std::wstring> wide_; // what asWChar() last returned
};

MAYA_API_NAMESPACE_EXIT
