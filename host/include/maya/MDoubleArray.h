// SPDX-License-Identifier: Apache-2.0
// An array of doubles. No bounds are checked, as in Maya; setLength fills with zeros.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MStatus.h>

#include <vector>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MDoubleArray
{
public:
    MDoubleArray();
    MDoubleArray(const MDoubleArray &other);
    MDoubleArray(const double src[], unsigned int count);
    MDoubleArray(const float src[], unsigned int count);
    MDoubleArray(unsigned int initialSize, double initialValue = 0);
    ~MDoubleArray();
    MDoubleArray &operator=(const MDoubleArray &other);

    double &operator[](unsigned int index) { return elements_[index]; }
    double operator[](unsigned int index) const { return elements_[index]; }
    unsigned int length() const { return static_cast<unsigned int>(elements_.size()); }
    MStatus setLength(unsigned int length);
    MStatus set(double element, unsigned int index);
    MStatus insert(double element, unsigned int index);
    MStatus append(double element);
    MStatus remove(unsigned int index);
    MStatus clear();
    MStatus set(float element, unsigned int index);
    MStatus copy(const MDoubleArray &source);
    MStatus get(double array[]) const;
    MStatus get(float array[]) const;
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;
    static const char *className();

private:
    std::vector<double> elements_;
    unsigned int sizeIncrement_ = 1;
};

MAYA_API_NAMESPACE_EXIT
