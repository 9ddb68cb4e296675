// SPDX-License-Identifier: Apache-2.0
#include "locks/lockScene.h"

#include <cstdio>
#include <sstream>

#include <QItemSelectionModel>

#include <maya/MFnDependencyNode.h>
#include <maya/MFnStringArrayData.h>
#include <maya/MPlug.h>
#include <maya/MSelectionList.h>
#include <maya/MStringArray.h>

namespace
{

std::string storedJoints(const MFnDependencyNode &node)
{
    MObject data;
    std::string text;
    if (node.findPlug("lockedJointNames", false).getValue(data) && !data.isNull()) {
        const MFnStringArrayData names(data);
        for (unsigned int i = 0; i < names.length(); ++i)
            text += std::string(" ") + names[i].asUTF8();
    }
    return text;
}

std::string storedVertices(const MFnDependencyNode &node)
{
    std::string text;
    const MPlug plug = node.findPlug("lockedVertexIndices", false);
    for (unsigned int i = 0; i < plug.numElements(); ++i) {
        const MPlug element = plug.elementByPhysicalIndex(i);
        if (element.asBool())
            text += " " + std::to_string(element.logicalIndex());
    }
    return text;
}

std::string storedCells(const MFnDependencyNode &node)
{
    std::string text;
    const MPlug plug = node.findPlug("lockedCellIndices", false);
    for (unsigned int i = 0; i < plug.numElements(); ++i) {
        const MPlug vertex = plug.elementByPhysicalIndex(i);
        const MPlug joints = vertex.child(0);
        for (unsigned int n = 0; n < joints.numElements(); ++n) {
            const MPlug joint = joints.elementByPhysicalIndex(n);
            text += " " + std::to_string(vertex.logicalIndex()) + "[" +
                    std::to_string(joint.logicalIndex()) + "]" + joint.asString().asUTF8();
        }
    }
    return text;
}

} // namespace

void LockScene::loadBody()
{
    makeSkin("body", {"hip", "knee", "ankle"},
             {{0.5, 0.3, 0.2}, {0.25, 0.25, 0.5}, {0.1, 0.1, 0.8}, {0.4, 0.4, 0.2}});
    load("body");
}

std::string LockScene::locked() const
{
    std::string text;
    for (int row = 0; row < model_->rowCount(); ++row) {
        text += row > 0 ? " " : "";
        for (int column = 0; column < model_->columnCount(); ++column)
            text +=
                model_->flags(model_->index(row, column)).testFlag(Qt::ItemIsEditable) ? '.' : '#';
    }
    return text;
}

std::string LockScene::stored(const std::string &skinCluster)
{
    MSelectionList list;
    MObject object;
    list.add(skinCluster.c_str());
    list.getDependNode(0, object);
    const MFnDependencyNode node(object);
    std::string text;
    const auto add = [&text](const std::string &kind, const std::string &what) {
        if (!what.empty())
            text += (text.empty() ? "" : "; ") + kind + what;
    };
    add("joints", storedJoints(node));
    add("vertices", storedVertices(node));
    add("cells", storedCells(node));
    return text;
}

bool LockScene::isLockedInMaya(const std::string &joint)
{
    return melString("getAttr " + joint + ".lockInfluenceWeights") == "1";
}

void LockScene::on(const std::string &parts, const char *slot)
{
    view_->clearSelection();
    std::istringstream words(parts);
    for (std::string word; words >> word;) {
        int row = 0;
        int column = 0;
        QItemSelectionModel::SelectionFlags how = QItemSelectionModel::Select;
        if (std::sscanf(word.c_str(), "c%d", &column) == 1)
            how |= QItemSelectionModel::Columns;
        else if (std::sscanf(word.c_str(), "r%d", &row) == 1)
            how |= QItemSelectionModel::Rows;
        else
            EXPECT_EQ(std::sscanf(word.c_str(), "%d:%d", &row, &column), 2) << word;
        view_->selectionModel()->select(model_->index(row, column), how);
    }
    call(slot);
}
