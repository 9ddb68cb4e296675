// SPDX-License-Identifier: Apache-2.0
// A colour with alpha, linear components from 0 to 1.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MTypes.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MColor
{
public:
    enum MColorType { kRGB, kHSV, kCMY, kCMYK };
    MColor();
    MColor(const MColor &);
    MColor(float rr, float gg, float bb = 0.0, float aa = 1.0);
    MColor(const float d[3]);
    MColor(float alpha);
    MColor(MColorType model, float c1, float c2, float c3, float alpha = 1.0);
    MColor(MColorType model, unsigned char c1, unsigned char c2, unsigned char c3,
           unsigned char alpha = 255);
    MColor(MColorType model, unsigned short c1, unsigned short c2, unsigned short c3,
           unsigned short alpha = 65535);
    MColor(MColorType model, double c1, double c2, double c3, double alpha = 1.0);
    ~MColor();
    MColor &operator=(const MColor &);
    float operator()(unsigned int i) const;
    float operator[](unsigned int i) const;
    float &operator()(unsigned int i);
    float &operator[](unsigned int i);
    MColor operator*(float) const;
    MColor operator+(const MColor &) const;
    bool operator==(const MColor &) const;
    bool operator!=(const MColor &) const;
    bool get(float d[3]) const;
    bool get(MColorType, float &, float &, float &, float &alpha) const;
    bool set(MColorType, float, float, float, float alpha = 1.0);
    static const MColor kOpaqueBlack;
    float r, g, b, a;
};

MAYA_API_NAMESPACE_EXIT
