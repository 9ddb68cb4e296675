// SPDX-License-Identifier: Apache-2.0
// An array of strings. Indexing a constant array gives a copy. No bounds are checked, as in Maya;
// setLength adds default elements. Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MStatus.h>

#include <vector>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MStringArray
{
public:
    MStringArray();
    MStringArray(const MStringArray &other);
    MStringArray(const MString strings[], unsigned int count);
    MStringArray(const char *strings[], unsigned int count);
    MStringArray(unsigned int initialSize, const MString &initialValue);
    ~MStringArray();
    MStringArray &operator=(const MStringArray &other);

    MString operator[](unsigned int index) const;
    MString &operator[](unsigned int index);
    unsigned int length() const;
    MStatus setLength(unsigned int length);
    MStatus set(const MString &element, unsigned int index);
    MStatus insert(const MString &element, unsigned int index);
    MStatus append(const MString &element);
    MStatus remove(unsigned int index);
    MStatus clear();

    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;
    static const char *className();

private:
    std::vector<MString> elements_;
    unsigned int sizeIncrement_ = 1;
};

MAYA_API_NAMESPACE_EXIT
