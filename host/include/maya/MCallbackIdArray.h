// SPDX-License-Identifier: Apache-2.0
// An array of callback ids. No bounds are checked, as in Maya; setLength fills with zeros.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MMessage.h>
#include <maya/MStatus.h>

#include <vector>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MCallbackIdArray
{
public:
    MCallbackIdArray();
    MCallbackIdArray(const MCallbackIdArray &other);
    MCallbackIdArray(const MCallbackId src[], unsigned int count);
    MCallbackIdArray(unsigned int initialSize, MCallbackId initialValue = 0);
    ~MCallbackIdArray();
    MCallbackIdArray &operator=(const MCallbackIdArray &other);

    MCallbackId &operator[](unsigned int index) { return elements_[index]; }
    MCallbackId operator[](unsigned int index) const { return elements_[index]; }
    unsigned int length() const { return static_cast<unsigned int>(elements_.size()); }
    MStatus setLength(unsigned int length);
    MStatus set(MCallbackId element, unsigned int index);
    MStatus insert(MCallbackId element, unsigned int index);
    MStatus append(MCallbackId element);
    MStatus remove(unsigned int index);
    MStatus clear();
    MStatus copy(const MCallbackIdArray &source);
    MStatus get(MCallbackId array[]) const;
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;
    static const char *className();

private:
    std::vector<MCallbackId> elements_;
    unsigned int sizeIncrement_ = 1;
};

MAYA_API_NAMESPACE_EXIT
