// SPDX-License-Identifier: Apache-2.0
// An array of integers. No bounds are checked, as in Maya; setLength fills with zeros.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MStatus.h>

#include <vector>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MIntArray
{
public:
    MIntArray();
    MIntArray(const MIntArray &other);
    MIntArray(const int src[], unsigned int count);
    MIntArray(unsigned int initialSize, int initialValue = 0);
    ~MIntArray();
    MIntArray &operator=(const MIntArray &other);

    int &operator[](unsigned int index) { return elements_[index]; }
    int operator[](unsigned int index) const { return elements_[index]; }
    unsigned int length() const { return static_cast<unsigned int>(elements_.size()); }
    MStatus setLength(unsigned int length);
    MStatus set(int element, unsigned int index);
    MStatus insert(int element, unsigned int index);
    MStatus append(int element);
    MStatus remove(unsigned int index);
    MStatus clear();
    MStatus copy(const MIntArray &source);
    MStatus get(int array[]) const;
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;
    static const char *className();

private:
    std::vector<int> elements_;
    unsigned int sizeIncrement_ = 1;
};

MAYA_API_NAMESPACE_EXIT
