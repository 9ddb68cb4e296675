// SPDX-License-Identifier: Apache-2.0
#include "ma/sceneWriter.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <unordered_set>

#include "ma/maFile.h"
#include "ma/outputFile.h"
#include "ma/sessionMark.h"
#include "ma/standardStream.h"
#include "scene/error.h"

namespace host::ma
{

namespace
{

// The first release that writes packed weights.
constexpr int kFirstPackedRelease = 2018;

} // namespace

FileStyle styleOf(const FileFacts &facts)
{
    FileStyle style;
    style.flags.areLong = facts.hasLongNames;
    const int release = std::atoi(facts.mayaVersion.c_str()); // "2018ff07", "7.0"
    if (release > 0 && release < kFirstPackedRelease)
        style.weights = WeightForm::runs;
    return style;
}

namespace
{

// Whether a connection joins a list rather than taking a place of its own.
bool takesNext(const Plug &destination)
{
    return destination.isElement() && !destination.attribute->indexMatters;
}

// What comes from elsewhere must not end the comment that it stands in.
std::string commentText(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return std::iscntrl(c) != 0; }, '_');
    return text;
}

// As its header and its last line call it.
std::string ownName(const Session &session, const std::string &path)
{
    const std::string &named = path == kStandardStream ? session.fileName() : path;
    return named.empty() ? "untitled.ma" : named.substr(named.rfind('/') + 1);
}

// The file comes to be when `write` has written all of it.
template <typename Function>
void writeThrough(Session &session, const std::string &path, Function write)
{
    const SessionMark mark(session.isWritingFile);
    OutputFile file(path);
    StatementWriter out([&file](std::string_view text) { file.write(text); });
    SceneWriter writer(out, session.scene());
    write(writer, ownName(session, path));
    out.finish();
    file.commit();
}

} // namespace

void writeConnection(StatementWriter &out, const FlagNames &flags, const Plug &destination,
                     const Connection &connection)
{
    const bool isNext = takesNext(destination);
    out.begin("connectAttr")
        .quoted(plugName(connection.plug(), flags.areLong))
        .quoted(plugName(isNext ? destination.array() : destination, flags.areLong));
    if (connection.isLocked)
        out.flag(flags("-l", "-lock"), "on");
    if (isNext)
        out.word(flags("-na", "-nextAvailable"));
    out.end();
}

SceneWriter::SceneWriter(StatementWriter &out, Scene &scene)
    : out_(out), scene_(scene), style_(styleOf(scene.facts)), nodes_(out_, style_)
{
}

void SceneWriter::writeFile(const std::string &fileName)
{
    writeHeader(fileName);
    for (const std::string &statement : scene_.facts.references)
        out_.line(statement);
    writeFacts();
    writeAllNodes();
    writeKeptConnections();
    for (const std::string &statement : scene_.facts.trailing)
        out_.line(statement);
    writeEnd(fileName);
    refuseToLose();
}

void SceneWriter::writePart(const std::string &fileName,
                            const std::unordered_set<const Node *> &nodes)
{
    part_ = &nodes;
    isForOther_ = true;
    writeHeader(fileName);
    writeFacts();
    writeAllNodes();
    writeKeptConnections();
    writeEnd(fileName);
}

void SceneWriter::writeAllNodes()
{
    writeBelow(scene_.world());
    writeLateInstances();
    writeDependencyNodes();
    for (const NodePtr &node : scene_.nodes()) {
        if (node->isDefault())
            nodes_.writeDefaultNode(node);
    }
    writeConnections();
}

void SceneWriter::writeEnd(const std::string &fileName)
{
    out_.line("// End of " + commentText(fileName));
}

// A node that no walk from the world reaches must not be left out without a word.
void SceneWriter::refuseToLose() const
{
    const std::vector<std::string> lost = missingNames(scene_, written_, connections_);
    if (lost.empty())
        return;
    constexpr std::size_t kNamed = 20;
    std::string text = "The scene was not saved, these would be lost:";
    for (std::size_t i = 0; i < std::min(lost.size(), kNamed); ++i)
        text += ' ' + lost[i];
    if (lost.size() > kNamed)
        text += " and " + std::to_string(lost.size() - kNamed) + " more";
    throw Error(text);
}

void SceneWriter::writeNodesFor(const std::vector<NodePtr> &present)
{
    isForOther_ = true;
    present_ = present;
    writeBelow(scene_.world());
    writeLateInstances();
    writeDependencyNodes();
    writeConnections();
    writeKeptConnections();
}

// No date: two savings of one scene are equal.
void SceneWriter::writeHeader(const std::string &fileName)
{
    out_.line("//Maya ASCII " + commentText(scene_.facts.mayaVersion) + " scene");
    out_.line("//Name: " + commentText(fileName));
    out_.line("//Codeset: UTF-8");
}

void SceneWriter::writeFacts()
{
    const FileFacts &facts = scene_.facts;
    out_.begin("requires").word("maya").quoted(facts.mayaVersion).end();
    for (const std::string &statement : facts.requiredPlugins)
        out_.line(statement);
    writeUnits();
    for (const auto &[key, value] : facts.fileInfo)
        out_.begin("fileInfo").quoted(key).quoted(value).end();
}

void SceneWriter::writeUnits()
{
    const FileFacts &facts = scene_.facts;
    const FlagNames &flags = style_.flags;
    out_.begin("currentUnit").word(flags("-l", "-linear")).wordOrQuoted(facts.linearUnit);
    out_.word(flags("-a", "-angle")).wordOrQuoted(facts.angularUnit);
    out_.word(flags("-t", "-time")).wordOrQuoted(facts.timeUnit).end();
}

bool SceneWriter::isPresent(const NodePtr &node) const
{
    return std::find(present_.begin(), present_.end(), node) != present_.end();
}

bool SceneWriter::isInPart(const Node &node) const
{
    return !part_ || part_->count(&node) > 0;
}

// Each node below its first parent; at the others it is an instance of what is there already.
void SceneWriter::writeBelow(const NodePtr &parent)
{
    for (const NodePtr &node : parent->children()) {
        if (!isInPart(*node))
            continue;
        if (node->parents().front() != parent.get()) {
            writeInstance(node, parent);
            continue;
        }
        if (!isPresent(node))
            nodes_.writeNode(node);
        written_.push_back(node);
        if (node->parents().size() > 1)
            instances_[node.get()] = 1;
        writeBelow(node);
    }
}

// Where an instance can't be made yet, because the node or one of its earlier instances comes
// later, it is left to writeLateInstances().
void SceneWriter::writeInstance(const NodePtr &node, const NodePtr &parent)
{
    const auto done = instances_.find(node.get());
    if (done == instances_.end() || node->parents()[done->second] != parent.get())
        return;
    ++done->second;
    writeInstanceOf(node, *parent);
}

void SceneWriter::writeInstanceOf(const NodePtr &node, const Node &parent)
{
    out_.begin("parent").word("-s").word("-nc").word("-r").word("-add");
    if (&parent == scene_.world().get())
        out_.word("-w").quoted(DagPath::first(node).fullName());
    else
        out_.quoted(DagPath::first(node).fullName())
            .quoted(parentText(std::const_pointer_cast<Node>(parent.shared_from_this())));
    out_.end();
}

void SceneWriter::writeLateInstances()
{
    for (const NodePtr &node : written_) {
        const std::size_t count = node->parents().size();
        while (count > 1 && instances_[node.get()] < count) {
            Node *parent = node->parents()[instances_[node.get()]];
            writeInstance(node, parent->shared_from_this());
        }
    }
}

void SceneWriter::writeDependencyNodes()
{
    for (const NodePtr &node : scene_.nodes()) {
        if (node->isDag() || node->isDefault() || !isInPart(*node))
            continue;
        if (!isPresent(node))
            nodes_.writeNode(node);
        written_.push_back(node);
    }
}

void SceneWriter::writeConnections()
{
    for (const NodePtr &node : written_)
        writeConnectionsInto(node);
    for (const NodePtr &node : scene_.nodes()) {
        if (node->isDefault())
            writeConnectionsInto(node);
    }
}

void SceneWriter::writeConnectionsInto(const NodePtr &node)
{
    // A node that another scene has too may join its lists, but not take its connections.
    const bool isElsewhere = isForOther_ && (node->isDefault() || isPresent(node));
    std::vector<std::pair<PlugKey, Connection>> sources(node->sources().begin(),
                                                        node->sources().end());
    std::sort(sources.begin(), sources.end(),
              [](const auto &a, const auto &b) { return isWrittenBefore(a.first, b.first); });
    for (const auto &[key, connection] : sources) {
        const Plug destination = node->plugOf(key);
        const bool isFromPart = connection.node->isDefault() || isInPart(*connection.node);
        if (!isFromPart || (isElsewhere && !takesNext(destination)))
            continue;
        writeConnection(out_, style_.flags, destination, connection);
        ++connections_;
    }
}

void writeKeptConnection(StatementWriter &out, const KeptConnection &connection)
{
    const auto textOf = [](const KeptConnection::End &end) {
        const NodePtr node = end.node.lock();
        return node ? nodeText(*node) + end.text : end.text;
    };
    out.begin("connectAttr")
        .quoted(textOf(connection.source))
        .quoted(textOf(connection.destination))
        .values(connection.flags)
        .end();
}

bool hasItsNodes(const KeptConnection &connection)
{
    const auto isThere = [](const KeptConnection::End &end) {
        const NodePtr node = end.node.lock();
        return !end.hasNode || (node && node->isInScene());
    };
    return isThere(connection.source) && isThere(connection.destination);
}

// Those that could not be made, unless a node of theirs was deleted or is left out.
void SceneWriter::writeKeptConnections()
{
    const auto isLeftOut = [this](const KeptConnection::End &end) {
        return end.hasNode && part_ && part_->count(end.node.lock().get()) == 0;
    };
    for (const KeptConnection &connection : scene_.facts.keptConnections) {
        if (hasItsNodes(connection) && !isLeftOut(connection.source) &&
            !isLeftOut(connection.destination))
            writeKeptConnection(out_, connection);
    }
}

std::vector<std::string> missingNames(const Scene &scene, const std::vector<NodePtr> &written,
                                      std::size_t connections)
{
    std::unordered_set<const Node *> there;
    for (const NodePtr &node : written)
        there.insert(node.get());
    const auto isLost = [&there](const Node &node) {
        return !node.isDefault() && there.count(&node) == 0;
    };
    std::vector<std::string> names;
    std::size_t all = 0;
    for (const NodePtr &node : scene.nodes()) {
        if (isLost(*node))
            names.push_back(node->name());
        for (const auto &[key, source] : node->sources()) {
            if (isLost(*node) || isLost(*source.node))
                names.push_back(source.plug().name() + " -> " + node->plugOf(key).name());
        }
        all += node->sources().size();
    }
    if (names.empty() && all != connections)
        names.push_back(std::to_string(all - connections) + " connections");
    return names;
}

void writeFile(Session &session, const std::string &path)
{
    writeThrough(session, path, [](SceneWriter &writer, const std::string &fileName) {
        writer.writeFile(fileName);
    });
}

void writePart(Session &session, const std::string &path,
               const std::unordered_set<const Node *> &nodes)
{
    writeThrough(session, path, [&nodes](SceneWriter &writer, const std::string &fileName) {
        writer.writePart(fileName, nodes);
    });
}

} // namespace host::ma
