// SPDX-License-Identifier: Apache-2.0
// A cube of 20 vertices, bound to three joints one above the other.
#pragma once

#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MFnSingleIndexedComponent.h>
#include <maya/MFnSkinCluster.h>
#include <maya/MSelectionList.h>

#include "support/mayaSession.h"

class BoundBody : public MayaSession
{
protected:
    BoundBody()
    {
        mel("polyCube -w 2 -h 4 -d 2 -sx 1 -sy 4 -sz 1 -n body; select -cl;"
            "joint -p 0 -2 0; joint -p 0 0 0; joint -p 0 2 0;"
            "skinCluster -tsb -mi 3 -dr 4 joint1 joint2 joint3 body;");
        shape_ = path("bodyShape");
        skin_.setObject(node("skinCluster1"));
    }

    static MDagPath path(const char *name)
    {
        MSelectionList list;
        MDagPath found;
        list.add(name);
        list.getDagPath(0, found);
        return found;
    }

    static MObject node(const char *name)
    {
        MSelectionList list;
        MObject found;
        list.add(name);
        list.getDependNode(0, found);
        return found;
    }

    static MObject vertices(std::initializer_list<int> numbers)
    {
        MFnSingleIndexedComponent component;
        MObject object = component.create(MFn::kMeshVertComponent);
        for (const int number : numbers)
            component.addElement(number);
        return object;
    }

    MDagPath shape_;
    MFnSkinCluster skin_;
};
