// SPDX-License-Identifier: Apache-2.0
//
// Scenes that people made with Maya: the table against the text of the file, read without the host.
// The folder of the scenes comes from the environment variable KORVEX_SCENES.

#include <cmath>
#include <cstdlib>
#include <regex>

#include <QDir>

#include "support/editorScene.h"
#include "support/maText.h"

namespace
{

// A skinned shape as the file describes it. Indices of influences are the file's, with gaps.
struct SkinText {
    std::string shape; // "group|body|bodyShape"
    std::map<int, std::string> influences;
    std::map<int, std::map<int, double>> weights; // by vertex and influence
};

std::string lastName(const std::string &path)
{
    return path.substr(path.rfind('|') + 1);
}

// The shape that the geometry of a node ends in, by the file's connections; empty if there is none.
std::string shapeBehind(const maText &file, std::string node)
{
    static const std::regex geometry(
        R"(([^.]+)\.(?:og|outputGeometry|out|output)(?:\[\d+\])? -> ([^.]+)\.)"
        R"((i|inMesh|ip|inputPolymesh|ig|(?:ip|input)\[\d+\]\.(?:ig|inputGeometry))(?: .*)?)");
    std::smatch part;
    for (auto fact = file.facts.lower_bound(node + '.');
         fact != file.facts.end() && fact->first.compare(0, node.size() + 1, node + '.') == 0;) {
        if (!std::regex_match(fact->first, part, geometry)) {
            ++fact;
            continue;
        }
        node = part[2];
        if (part[3] == "i" || part[3] == "inMesh")
            return node;
        fact = file.facts.lower_bound(node + '.');
    }
    return std::string();
}

// The skin clusters that deform a mesh, by name.
std::map<std::string, SkinText> skinsOf(const maText &file)
{
    static const std::regex intoMatrix(
        R"((.+)\.(?:wm|worldMatrix)(?:\[0\])? -> (.+)\.(?:ma|matrix)\[(\d+)\].*)");
    static const std::regex weight(R"((.+) \.(?:wl|weightList)\[(\d+)\]\.w\[(\d+)\])");
    std::map<std::string, SkinText> skins;
    std::smatch part;
    for (const auto &fact : file.facts) {
        if (std::regex_match(fact.first, part, intoMatrix))
            skins[part[2]].influences[std::stoi(part[3])] = part[1];
        else if (std::regex_match(fact.first, part, weight))
            skins[part[1]].weights[std::stoi(part[2])][std::stoi(part[3])] =
                std::strtod(fact.second.c_str(), nullptr);
    }
    for (auto skin = skins.begin(); skin != skins.end();) {
        skin->second.shape = shapeBehind(file, skin->first);
        const auto type = file.facts.find("node " + skin->first);
        const bool isReached = type != file.facts.end() && type->second == "skinCluster" &&
                               !skin->second.shape.empty();
        skin = isReached ? std::next(skin) : skins.erase(skin);
    }
    return skins;
}

std::string columnsOf(const SkinText &skin)
{
    std::string names;
    for (const auto &influence : skin.influences)
        names += (names.empty() ? "" : " ") + lastName(influence.second);
    return names;
}

} // namespace

class realScenes : public EditorScene
{
protected:
    // The texts of a row are the file's weights at three places. The last one may take what the
    // others lost by rounding.
    void expectRow(int row, const SkinText &skin, const std::map<int, double> &weights)
    {
        double shown = 0.0, stored = 0.0, roundingLoss = 0.0;
        int column = 0;
        for (const auto &influence : skin.influences) {
            const auto found = weights.find(influence.first);
            const double weight = found == weights.end() ? 0.0 : found->second;
            const double text = std::stod(cellText(row, column++));
            const double margin = weight == 0.0 ? 0.0 : 0.00051 + roundingLoss;
            ASSERT_NEAR(text, weight, margin) << row << ", " << influence.second;
            roundingLoss += weight == 0.0 ? 0.0 : 0.00051;
            shown += text;
            stored += weight;
        }
        // Rows of many small weights may be off by more than the last one is to make up for.
        const double error = std::abs(shown - 1.0);
        if (std::abs(stored - 1.0) < 0.0005) {
            ASSERT_TRUE(error < 1e-9 || error > 0.0015) << row << ": " << shown;
        }
    }

    void expectTable(const SkinText &skin)
    {
        EXPECT_EQ(columnNames(), columnsOf(skin));
        ASSERT_FALSE(skin.weights.empty());
        ASSERT_EQ(model_->rowCount(), skin.weights.rbegin()->first + 2);
        EXPECT_EQ(model_->headerData(0, Qt::Vertical).toString().toStdString(),
                  lastName(skin.shape));
        for (int row = 1; row < model_->rowCount(); ++row) {
            ASSERT_EQ(model_->headerData(row, Qt::Vertical).toString().toStdString(),
                      "vtx[" + std::to_string(row - 1) + "]");
            const auto weights = skin.weights.find(row - 1);
            expectRow(row, skin,
                      weights == skin.weights.end() ? std::map<int, double>() : weights->second);
            if (HasFatalFailure())
                return;
        }
    }
};

TEST_F(realScenes, showTheWeightsThatTheirFilesHold)
{
    if (qEnvironmentVariableIsEmpty("KORVEX_SCENES"))
        GTEST_SKIP() << "KORVEX_SCENES names no folder of scenes";
    const QDir folder(qEnvironmentVariable("KORVEX_SCENES"));
    int skinCount = 0;
    for (const QString &name : folder.entryList({"*.ma"})) {
        const std::string path = folder.filePath(name).toStdString();
        mel("file -f -open \"" + path + "\"");
        mel("select -cl");
        for (const auto &skin : skinsOf(maText(path))) {
            SCOPED_TRACE(name.toStdString() + ", " + skin.first);
            load("\"|" + skin.second.shape + "\"");
            expectTable(skin.second);
            ++skinCount;
        }
    }
    EXPECT_GT(skinCount, 0) << "no scene was checked";
}
