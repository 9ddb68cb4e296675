// SPDX-License-Identifier: Apache-2.0
// Importing: the file is read into a scene of its own, so that a broken one changes nothing; its
// nodes get names that are free in the session's scene, and are then written and run there.
#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "ma/maFile.h"
#include "ma/sceneWriter.h"
#include "ma/sessionMark.h"
#include "ma/statementRunner.h"
#include "scene/uuid.h"

namespace host::ma
{

namespace
{

// A rename that locked nodes take too.
void forceName(Scene &scene, const NodePtr &node, const std::string &name)
{
    const bool isLocked = node->isLocked();
    const bool isLockUnpublished = node->isLockUnpublished();
    scene.setNodeLock(node, false, isLockUnpublished);
    scene.rename(node, name);
    scene.setNodeLock(node, isLocked, isLockUnpublished);
}

// Names that neither scene has.
class FreeNames
{
public:
    FreeNames(const Scene &imported, const Scene &target) : imported_(imported), target_(target) {}
    std::string of(const std::string &wanted, const std::string &prefix)
    {
        if (target_.nodesNamed(wanted).empty())
            return wanted;
        const std::string prefixed = prefix.empty() ? wanted : prefix + '_' + wanted;
        if (!prefix.empty() && !isTaken(prefixed))
            return prefixed;
        return numbers_.next(prefixed, [this](const std::string &name) { return isTaken(name); });
    }

private:
    bool isTaken(const std::string &name) const
    {
        return !target_.nodesNamed(name).empty() || !imported_.nodesNamed(name).empty();
    }

    const Scene &imported_;
    const Scene &target_;
    NumberedNames numbers_;
};

// Shared nodes (the default cameras, lightLinker1) stand for those of the same name.
std::vector<NodePtr> presentNodes(const Scene &imported, const Scene &target)
{
    std::vector<NodePtr> present;
    for (const NodePtr &node : imported.nodes()) {
        if (node->isShared() && !target.nodesNamed(node->name()).empty())
            present.push_back(node);
    }
    return present;
}

void giveFreeNames(Scene &imported, const Scene &target, const std::string &nameSpace,
                   const std::string &prefix)
{
    std::set<std::string> uuids;
    for (const NodePtr &node : target.nodes())
        uuids.insert(node->uuid());
    std::vector<std::pair<NodePtr, std::string>> wanted;
    for (const NodePtr &node : imported.nodes()) {
        if (node->uuid().empty() || uuids.count(node->uuid()) > 0)
            imported.setUuid(node, newUuid());
        if (!node->isDefault() && !node->isShared())
            wanted.emplace_back(node, (nameSpace.empty() ? "" : nameSpace + ':') + node->name());
    }
    FreeNames names(imported, target);
    for (const auto &[node, name] : wanted)
        forceName(imported, node, names.of(name, prefix));
}

void runText(mel::Interpreter &interpreter, std::string_view text, Scene &target)
{
    const SessionMark mark(interpreter.session().isReadingFile);
    StatementRunner runner(
        {interpreter.session(), interpreter, nullptr, true, text.size(), &target}, nullptr);
    runner.runAll(text);
    runner.finish();
}

} // namespace

void importFile(mel::Interpreter &interpreter, const std::string &path,
                const std::string &nameSpace, const std::string &prefix)
{
    const std::unique_ptr<Scene> imported = readFile(interpreter, path);
    Scene &target = interpreter.session().scene();
    giveFreeNames(*imported, target, nameSpace, prefix);

    std::string text;
    StatementWriter out([&text](std::string_view piece) { text += piece; });
    SceneWriter(out, *imported).writeNodesFor(presentNodes(*imported, target));
    out.finish();
    runText(interpreter, text, target);
}

} // namespace host::ma
