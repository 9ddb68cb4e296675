// SPDX-License-Identifier: Apache-2.0
#include "edit/preparedScene.h"

#include <cstdio>
#include <sstream>

#include <maya/MItMeshVertex.h>
#include <maya/MSelectionList.h>

void PreparedScene::makeSkin(const std::string &mesh, const std::vector<std::string> &joints,
                             const std::vector<std::vector<double>> &rows)
{
    std::ostringstream script;
    std::string names;
    for (const std::string &joint : joints) {
        names += " " + joint;
        if (melString("objExists " + joint) == "0")
            script << "select -cl; joint -n " << joint << ";\n";
    }
    script << "polyPlane -sx " << rows.size() / 2 - 1 << " -sy 1 -n " << mesh
           << "; skinCluster -tsb -n " << mesh << "Skin" << names << ' ' << mesh << "; setAttr "
           << mesh << "Skin.nw 0;\n";
    for (std::size_t v = 0; v < rows.size(); ++v) {
        for (std::size_t i = 0; i < joints.size(); ++i)
            script << "setAttr " << mesh << "Skin.wl[" << v << "].w[" << i << "] " << rows[v][i]
                   << ";\n";
    }
    mel(script.str() + "setAttr " + mesh + "Skin.nw 1; select -cl;");
}

void PreparedScene::load(const std::string &names)
{
    mel("select -r " + names);
    model_.refreshSkinClusterData();
}

preparation PreparedScene::prepare(editPreparer preparer)
{
    const editSource source = {model_.weights(), model_.locks(), handOver_, maxInfluences_};
    edit_ = preparedEdit();
    return preparer(source, edit_);
}

std::string PreparedScene::weights(const std::string &mesh)
{
    std::string text;
    MSelectionList list;
    MDagPath shape;
    list.add((mesh + "Shape").c_str());
    list.getDagPath(0, shape);
    const int count = MItMeshVertex(shape).count();
    for (int vertex = 0; vertex < count; ++vertex) {
        text += vertex > 0 ? ";" : "";
        for (const double weight : melNumbers("skinPercent -q -v " + mesh + "Skin " + mesh +
                                              ".vtx[" + std::to_string(vertex) + "]")) {
            char digits[32];
            std::snprintf(digits, sizeof digits, " %.4g", weight);
            text += digits;
        }
    }
    return text.substr(1);
}
