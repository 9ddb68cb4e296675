// SPDX-License-Identifier: Apache-2.0
// A point in homogeneous coordinates, in centimetres.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MTypes.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MPoint
{
public:
    MPoint() : x(0), y(0), z(0), w(1) {}
    MPoint(double xx, double yy, double zz = 0.0, double ww = 1.0) : x(xx), y(yy), z(zz), w(ww) {}
    static const char *className();
    double x, y, z, w;
};

MAYA_API_NAMESPACE_EXIT
