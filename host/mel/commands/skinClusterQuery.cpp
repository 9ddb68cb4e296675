// SPDX-License-Identifier: Apache-2.0
// skinCluster -query.
#include "mel/commands/bindSkin.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/skinClusterCommand.h"

namespace host::mel
{

namespace
{

struct Question {
    Context &context;
    const Arguments &arguments;
    const SkinCluster &cluster;
};

MelValue influenceNames(const Question &question)
{
    std::vector<std::string> names;
    for (const Influence &influence : question.cluster.influences())
        names.push_back(influence.path.partialName());
    return names;
}

MelValue weightedInfluenceNames(const Question &question)
{
    const std::vector<bool> used = influencesInUse(question.cluster);
    std::vector<std::string> names;
    for (std::size_t i = 0; i < used.size(); ++i) {
        if (used[i])
            names.push_back(question.cluster.influences()[i].path.partialName());
    }
    return names;
}

MelValue unusedInfluenceCount(const Question &question)
{
    long long count = 0;
    for (const bool isUsed : influencesInUse(question.cluster))
        count += isUsed ? 0 : 1;
    return count;
}

MelValue geometryNames(const Question &question)
{
    std::vector<std::string> names;
    for (const NodePtr &shape : deformedShapes(*question.cluster.node()))
        names.push_back(shape->uniqueName());
    return names;
}

MelValue geometryIndices(const Question &question)
{
    // One weight list is for one geometry, whichever shapes show it.
    return std::vector<long long>(deformedShapes(*question.cluster.node()).size(), 0);
}

// The influence that "-influence name", in front of -query, asks about.
std::size_t askedInfluence(const Question &question)
{
    const Arguments &arguments = question.arguments;
    if (!arguments.has("influence") || arguments.of("influence").empty())
        throw Error("Flag '-inf' with an influence is needed before -query.");
    return requireInfluence(question.context, question.cluster, arguments.of("influence")[0].text);
}

MelValue lockOf(const Question &question)
{
    return static_cast<long long>(question.cluster.locks()[askedInfluence(question)]);
}

MelValue dropoffOfInfluence(const Question &question)
{
    const Influence &influence = question.cluster.influences()[askedInfluence(question)];
    return evaluateNumber(
        question.cluster.node()->plug("dropoff").element(int(influence.logicalIndex)));
}

struct Answer {
    const char *flag;
    MelValue (*give)(const Question &question);
};

// In the order in which they count when several are asked: -influence stands beside others.
const Answer kAnswers[] = {{"lockWeights", lockOf},
                           {"dropoffRate", dropoffOfInfluence},
                           {"weightedInfluence", weightedInfluenceNames},
                           {"geometry", geometryNames},
                           {"geometryIndices", geometryIndices},
                           {"removeUnusedInfluence", unusedInfluenceCount},
                           {"influence", influenceNames}};

} // namespace

MelValue querySkinCluster(Context &context, const Arguments &arguments)
{
    const SkinCluster cluster = requireSkinCluster(context, arguments);
    for (const SkinSetting &setting : skinSettings()) {
        if (arguments.has(setting.flag.longName))
            return static_cast<long long>(evaluateNumber(cluster.node()->plug(setting.attribute)));
    }
    for (const Answer &answer : kAnswers) {
        if (arguments.has(answer.flag))
            return answer.give({context, arguments, cluster});
    }
    throwNoQuestion();
}

} // namespace host::mel
