// SPDX-License-Identifier: Apache-2.0
#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MString.h>

#include <algorithm>

#include "api/nodeBody.h"
#include "api/status.h"
#include "api/text.h"
#include "scene/scene.h"

using host::answer;
using host::DagPath;
using host::NodePtr;

namespace
{

const DagPath *pathFor(const MDagPath &path, MStatus *status)
{
    const DagPath *found = host::pathOf(path);
    host::report(status, found ? MStatus::kSuccess : MStatus::kFailure);
    return found;
}

std::vector<NodePtr> shapesBelow(const DagPath &path)
{
    std::vector<NodePtr> shapes;
    for (const NodePtr &child : path.node()->children())
        if (child->isA("shape"))
            shapes.push_back(child);
    return shapes;
}

bool isShownByItself(const NodePtr &node)
{
    return host::evaluateNumber(node->plug("visibility")) != 0.0 && !node->isIntermediate();
}

} // namespace

MDagPath::MDagPath() = default;
MDagPath::MDagPath(const MDagPath &other) = default;
MDagPath::~MDagPath() = default;
MDagPath &MDagPath::operator=(const MDagPath &other) = default;
const char *MDagPath::className()
{
    return "MDagPath";
}

MStatus MDagPath::getAllPathsTo(const MObject &node, MDagPathArray &pathArray)
{
    const NodePtr hostNode = host::nodeOf(node);
    if (!hostNode || !hostNode->isDag())
        return MStatus::kInvalidParameter;
    MDagPathArray paths;
    for (DagPath &path : DagPath::all(hostNode))
        paths.append(host::toMDagPath(std::move(path)));
    pathArray = paths;
    return MStatus::kSuccess;
}

MStatus MDagPath::getAPathTo(const MObject &node, MDagPath &path)
{
    const NodePtr hostNode = host::nodeOf(node);
    if (!hostNode || !hostNode->isDag())
        return MStatus::kInvalidParameter;
    path = host::toMDagPath(DagPath::first(hostNode));
    return MStatus::kSuccess;
}

bool MDagPath::hasFn(MFn::Type type, MStatus *ReturnStatus) const
{
    return node(ReturnStatus).hasFn(type);
}

MFn::Type MDagPath::apiType(MStatus *ReturnStatus) const
{
    return node(ReturnStatus).apiType();
}

bool MDagPath::isValid(MStatus *ReturnStatus) const
{
    return answer(ReturnStatus, MStatus::kSuccess, host::pathOf(*this) != nullptr);
}

MObject MDagPath::node(MStatus *ReturnStatus) const
{
    const DagPath *path = pathFor(*this, ReturnStatus);
    return path ? host::toObject(path->node()) : MObject();
}

MObject MDagPath::transform(MStatus *ReturnStatus) const
{
    const DagPath *path = pathFor(*this, ReturnStatus);
    if (!path)
        return MObject();
    const auto &nodes = path->nodes();
    const auto place = std::find_if(nodes.rbegin(), nodes.rend(),
                                    [](const NodePtr &node) { return node->isA("transform"); });
    if (place == nodes.rend())
        return answer(ReturnStatus, MStatus::kFailure, MObject());
    return host::toObject(*place);
}

unsigned int MDagPath::length(MStatus *ReturnStatus) const
{
    const DagPath *path = pathFor(*this, ReturnStatus);
    return path ? static_cast<unsigned int>(path->nodes().size()) : 0;
}

// The first shape counts, be it intermediate or not; a path that ends in a shape stays as it is.
MStatus MDagPath::extendToShape()
{
    const DagPath *path = host::pathOf(*this);
    if (path && path->node()->isA("shape"))
        return MStatus::kSuccess;
    return extendToShapeDirectlyBelow(0);
}

MStatus MDagPath::extendToShapeDirectlyBelow(unsigned int index)
{
    const DagPath *path = host::pathOf(*this);
    if (!path)
        return MStatus::kFailure;
    const std::vector<NodePtr> shapes = shapesBelow(*path);
    if (index >= shapes.size())
        return MStatus::kInvalidParameter;
    *this = host::toMDagPath(path->child(shapes[index]));
    return MStatus::kSuccess;
}

MStatus MDagPath::numberOfShapesDirectlyBelow(unsigned int &count) const
{
    const DagPath *path = host::pathOf(*this);
    if (!path)
        return MStatus::kFailure;
    count = static_cast<unsigned int>(shapesBelow(*path).size());
    return MStatus::kSuccess;
}

MStatus MDagPath::push(const MObject &child)
{
    const NodePtr node = host::nodeOf(child);
    if (!node || !node->isDag())
        return MStatus::kInvalidParameter;
    const DagPath *path = host::pathOf(*this);
    const DagPath longer = path ? path->child(node) : DagPath({node});
    if (!longer.isValid())
        return MStatus::kInvalidParameter;
    *this = host::toMDagPath(longer);
    return MStatus::kSuccess;
}

MStatus MDagPath::pop(unsigned int num)
{
    const DagPath *path = host::pathOf(*this);
    if (!path || num > path->nodes().size())
        return MStatus::kFailure;
    const auto end = path->nodes().end() - static_cast<std::ptrdiff_t>(num);
    *this = host::toMDagPath(DagPath(std::vector<NodePtr>(path->nodes().begin(), end)));
    return MStatus::kSuccess;
}

unsigned int MDagPath::childCount(MStatus *ReturnStatus) const
{
    const DagPath *path = pathFor(*this, ReturnStatus);
    return path ? static_cast<unsigned int>(path->node()->children().size()) : 0;
}

MObject MDagPath::child(unsigned int i, MStatus *ReturnStatus) const
{
    const DagPath *path = pathFor(*this, ReturnStatus);
    if (!path)
        return MObject();
    if (i >= path->node()->children().size())
        return answer(ReturnStatus, MStatus::kInvalidParameter, MObject());
    return host::toObject(path->node()->children()[i]);
}

bool MDagPath::operator==(const MDagPath &other) const
{
    const DagPath *path = host::pathOf(*this);
    const DagPath *otherPath = host::pathOf(other);
    return path && otherPath ? *path == *otherPath : path == otherPath;
}

MStatus MDagPath::set(const MDagPath &other)
{
    *this = other;
    return MStatus::kSuccess;
}

MString MDagPath::fullPathName(MStatus *ReturnStatus) const
{
    const DagPath *path = pathFor(*this, ReturnStatus);
    return path ? host::toMString(path->fullName()) : MString();
}

MString MDagPath::partialPathName(MStatus *ReturnStatus) const
{
    const DagPath *path = pathFor(*this, ReturnStatus);
    return path ? host::toMString(path->partialName()) : MString();
}

bool MDagPath::isInstanced(MStatus *ReturnStatus) const
{
    const DagPath *path = pathFor(*this, ReturnStatus);
    return path && DagPath::all(path->node()).size() > 1;
}

unsigned int MDagPath::instanceNumber(MStatus *ReturnStatus) const
{
    const DagPath *path = pathFor(*this, ReturnStatus);
    return path ? path->instanceNumber() : 0;
}

bool MDagPath::isVisible(MStatus *ReturnStatus) const
{
    const DagPath *path = pathFor(*this, ReturnStatus);
    return path && std::all_of(path->nodes().begin(), path->nodes().end(), isShownByItself);
}
