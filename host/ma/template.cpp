// SPDX-License-Identifier: Apache-2.0
#include "ma/template.h"

#include <algorithm>
#include <unordered_map>

#include "ma/reader.h"
#include "ma/setAttrWords.h"
#include "scene/plugAccess.h"

namespace host::ma
{

namespace
{

using Kind = TemplateStatement::Kind;

const Attribute *topOf(const AttributePtr &attribute)
{
    return attribute ? AttributeChain(*attribute)[0] : nullptr;
}

std::string_view flagValue(const mel::Statement &statement, std::string_view shortFlag,
                           std::string_view longFlag)
{
    for (std::size_t i = 0; i + 1 < statement.arguments.size(); ++i) {
        const mel::Argument &argument = statement.arguments[i];
        if (argument.isFlag() && (argument.text == shortFlag || argument.text == longFlag))
            return statement.arguments[i + 1].text;
    }
    return {};
}

// The words that belong to no flag, of commands whose flags have no values but -lock.
std::vector<std::string_view> objectsOf(const mel::Statement &statement)
{
    std::vector<std::string_view> objects;
    for (std::size_t i = 0; i < statement.arguments.size(); ++i) {
        const mel::Argument &argument = statement.arguments[i];
        if (!argument.isFlag())
            objects.push_back(argument.text);
        else if (argument.text == "-l" || argument.text == "-lock")
            ++i;
    }
    return objects;
}

// The plug that a connection comes from: of an array with an element per instance that of the
// instance which the path names.
Plug sourceOf(const Scene &scene, std::string_view name)
{
    const std::size_t dot = std::min(name.find('.'), name.size() - 1);
    const NodePtr node = scene.node(name.substr(0, dot));
    const std::string_view path = name.substr(dot + 1);
    Plug plug = resolvePlugPath(node, path, UnknownAttribute::refuse).plug;
    const std::size_t nameEnd = path.find_first_of(".[");
    const bool hasIndex = nameEnd != std::string_view::npos && path[nameEnd] == '[';
    if (AttributeChain(*plug.attribute)[0]->isPerInstance && node->isDag() && !hasIndex)
        plug.indices[0] = int(scene.pathsMatching(name.substr(0, dot)).front().instanceNumber());
    return plug;
}

class Recorder : public StatementListener
{
public:
    explicit Recorder(Template &into) : into_(into) {}
    void wasRead(std::string_view text, const mel::Script &script, Node *node,
                 bool hasFailed) override;
    void hasEnded(std::string_view rest) override { into_.text += rest; }

private:
    using Describe = void (Recorder::*)(const mel::Statement &, TemplateStatement &);
    static const std::unordered_map<std::string_view, Describe> kDescriptions;

    void createNode(const mel::Statement &, TemplateStatement &to) { to.kind = Kind::createNode; }
    void select(const mel::Statement &, TemplateStatement &to) { to.kind = Kind::selectNode; }
    void rename(const mel::Statement &, TemplateStatement &to) { to.kind = Kind::uuid; }
    void lockNode(const mel::Statement &, TemplateStatement &to) { to.kind = Kind::nodeLock; }
    void currentUnit(const mel::Statement &, TemplateStatement &to) { to.kind = Kind::unit; }
    void requirePlugin(const mel::Statement &, TemplateStatement &to);
    void file(const mel::Statement &, TemplateStatement &to);
    void fileInfo(const mel::Statement &from, TemplateStatement &to);
    void trailing(const mel::Statement &, TemplateStatement &to);
    void kept(TemplateStatement &to);
    void addAttr(const mel::Statement &from, TemplateStatement &to);
    void setAttr(const mel::Statement &from, TemplateStatement &to);
    void parent(const mel::Statement &from, TemplateStatement &to);
    void connectAttr(const mel::Statement &from, TemplateStatement &to);

    Template &into_;
    // Of the scene's lists: how much of them the statements before have brought.
    std::size_t plugins_ = 0;
    std::size_t references_ = 0;
    std::size_t trailing_ = 0;
    std::size_t keptConnections_ = 0;
};

const std::unordered_map<std::string_view, Recorder::Describe> Recorder::kDescriptions = {
    {"createNode", &Recorder::createNode},
    {"select", &Recorder::select},
    {"rename", &Recorder::rename},
    {"lockNode", &Recorder::lockNode},
    {"currentUnit", &Recorder::currentUnit},
    {"requires", &Recorder::requirePlugin},
    {"file", &Recorder::file},
    {"fileInfo", &Recorder::fileInfo},
    {"relationship", &Recorder::trailing},
    {"dataStructure", &Recorder::trailing},
    {"applyMetadata", &Recorder::trailing},
    {"addAttr", &Recorder::addAttr},
    {"setAttr", &Recorder::setAttr},
    {"parent", &Recorder::parent},
    {"connectAttr", &Recorder::connectAttr},
};

void Recorder::wasRead(std::string_view text, const mel::Script &script, Node *node, bool hasFailed)
{
    TemplateStatement &statement = into_.statements.emplace_back();
    statement.begin = into_.text.size();
    statement.size = text.size();
    statement.node = node;
    statement.indices.fill(kNoIndex);
    into_.text += text;
    if (script.statements.size() != 1)
        return;
    if (hasFailed)
        return kept(statement);
    const auto description = kDescriptions.find(script.statements.front().command);
    if (description == kDescriptions.end())
        return;
    try {
        (this->*description->second)(script.statements.front(), statement);
    } catch (const Error &) {
        statement.kind = Kind::other;
    }
}

// Takes what a statement added to a list of the scene's facts.
bool takeNew(const std::vector<std::string> &list, std::size_t &known, std::string &fact)
{
    if (list.size() == known)
        return false;
    known = list.size();
    fact = list.back();
    return true;
}

void Recorder::requirePlugin(const mel::Statement &, TemplateStatement &to)
{
    const bool isPlugin = takeNew(into_.scene.facts.requiredPlugins, plugins_, to.fact);
    to.kind = isPlugin ? Kind::plugin : Kind::version;
}

void Recorder::file(const mel::Statement &, TemplateStatement &to)
{
    if (takeNew(into_.scene.facts.references, references_, to.fact))
        to.kind = Kind::reference;
}

void Recorder::fileInfo(const mel::Statement &from, TemplateStatement &to)
{
    const std::vector<std::string_view> objects = objectsOf(from);
    if (objects.size() != 2)
        return;
    to.kind = Kind::info;
    to.fact = objects[0];
}

void Recorder::trailing(const mel::Statement &, TemplateStatement &to)
{
    if (takeNew(into_.scene.facts.trailing, trailing_, to.fact))
        to.kind = Kind::trailing;
}

// A statement that was not understood: where the scene keeps it, if not with a node.
void Recorder::kept(TemplateStatement &to)
{
    const FileFacts &facts = into_.scene.facts;
    if (facts.keptConnections.size() > keptConnections_) {
        keptConnections_ = facts.keptConnections.size();
        to.kind = Kind::keptConnection;
    } else if (takeNew(facts.requiredPlugins, plugins_, to.fact)) {
        to.kind = Kind::plugin;
    } else if (takeNew(facts.references, references_, to.fact)) {
        to.kind = Kind::reference;
    } else if (takeNew(facts.trailing, trailing_, to.fact)) {
        to.kind = Kind::trailing;
    }
}

void Recorder::addAttr(const mel::Statement &from, TemplateStatement &to)
{
    const std::string_view name = flagValue(from, "-ln", "-longName");
    to.attribute = to.node ? topOf(to.node->findAttribute(name)) : nullptr;
    if (to.attribute && to.attribute->isDynamic)
        to.kind = Kind::addAttribute;
}

void Recorder::setAttr(const mel::Statement &from, TemplateStatement &to)
{
    const std::string_view plug = sortSetAttr(from).plug;
    // Only statements about the current node name their plug without it; others are rare.
    if (!to.node || plug.empty() || plug.front() != '.')
        return;
    const std::string_view name = plug.substr(1, plug.find_first_of(".[", 1) - 1);
    to.attribute = topOf(to.node->findAttribute(name));
    if (to.attribute)
        to.kind = Kind::setAttribute;
}

void Recorder::parent(const mel::Statement &from, TemplateStatement &to)
{
    const std::vector<std::string_view> objects = objectsOf(from);
    const NodePtr child = objects.empty() ? nullptr : into_.scene.findNode(objects.front());
    if (!child)
        return;
    to.kind = Kind::instance;
    to.node = child.get();
    to.parent = child->parents().back(); // an instance is always the last one
}

// What the connection's end was named can change with the scene; the connection itself tells.
void Recorder::connectAttr(const mel::Statement &from, TemplateStatement &to)
{
    const std::vector<std::string_view> objects = objectsOf(from);
    if (objects.size() != 2)
        return;
    const Plug source = sourceOf(into_.scene, objects[0]);
    const auto made = source.node->allDestinations().find(PlugKey(source));
    if (made == source.node->allDestinations().end())
        return;
    const Connection &last = made->second.back();
    to.kind = Kind::connection;
    to.node = last.node;
    to.attribute = last.attribute.get();
    to.indices = last.indices;
}

} // namespace

std::unique_ptr<Template> readTemplate(mel::Interpreter &interpreter, const std::string &path)
{
    auto result = std::make_unique<Template>();
    Recorder recorder(*result);
    Reader reader(interpreter, path, nullptr, result->scene, &recorder);
    result->codeset = reader.file().codeset();
    result->text.reserve(reader.file().size());
    reader.run();
    return result;
}

} // namespace host::ma
