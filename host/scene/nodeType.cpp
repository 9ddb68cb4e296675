// SPDX-License-Identifier: Apache-2.0
#include "scene/nodeType.h"

#include <cassert>
#include <sstream>

#include "scene/nodeTypeTable.h"

namespace host
{

namespace
{

// Applies "default=4", "key", ... to a freshly declared attribute.
void applyOption(Attribute &attribute, const std::string &option)
{
    const std::size_t equals = option.find('=');
    const std::string key = option.substr(0, equals);
    const std::string text = equals == std::string::npos ? "" : option.substr(equals + 1);
    if (key == "instance") {
        attribute.isPerInstance = true;
    } else if (key == "computed") {
        attribute.isComputed = true;
    } else if (key == "key") {
        attribute.isKeyable = true;
    } else if (key == "unindexed") {
        attribute.indexMatters = false;
    } else if (key == "default") {
        attribute.defaultNumber = std::stod(text);
    } else if (key == "min") {
        attribute.minimum = std::stod(text);
    } else if (key == "max") {
        attribute.maximum = std::stod(text);
    } else if (key == "enum") {
        attribute.enumNames = text;
    } else if (key == "names") {
        std::istringstream names(text);
        std::string name;
        for (std::size_t i = 0; i < attribute.children.size(); ++i) {
            std::getline(names, name, ',');
            const std::size_t slash = name.find('/');
            const NewAttributePtr child = attribute.newChild(i);
            child->longName = name.substr(0, slash);
            child->shortName = name.substr(slash + 1);
        }
    }
    // What holds for a tuple holds for each of its numbers.
    if (key == "names" || key == "instance" || !attribute.isTuple())
        return;
    for (std::size_t i = 0; i < attribute.children.size(); ++i)
        applyOption(*attribute.newChild(i), option);
}

// Options may hold blanks inside enum names: "enum=Closest distance:Heat map".
std::vector<std::string> splitOptions(std::istringstream &words)
{
    std::vector<std::string> options;
    std::string word;
    while (words >> word) {
        const bool isOption = word.find('=') != std::string::npos || word == "instance" ||
                              word == "computed" || word == "key" || word == "unindexed" ||
                              word == "{";
        if (isOption || options.empty())
            options.push_back(word);
        else
            options.back() += ' ' + word;
    }
    return options;
}

NewAttributePtr parseAttribute(const std::string &line, bool &opensChildren)
{
    std::istringstream words(line);
    std::string longName;
    std::string shortName;
    std::string typeName;
    words >> longName >> shortName >> typeName;
    const bool isArray = typeName.size() > 2 && typeName.compare(typeName.size() - 2, 2, "[]") == 0;
    if (isArray)
        typeName.resize(typeName.size() - 2);
    NewAttributePtr attribute = makeAttribute(longName, shortName, typeName);
    assert(attribute && "the node type table names an unknown type");
    attribute->isArray = isArray;
    opensChildren = false;
    for (const std::string &option : splitOptions(words)) {
        if (option == "{")
            opensChildren = true;
        else
            applyOption(*attribute, option);
    }
    return attribute;
}

unsigned numberInOrder(Attribute &attribute, unsigned next)
{
    attribute.order = next++;
    for (std::size_t i = 0; i < attribute.children.size(); ++i)
        next = numberInOrder(*attribute.newChild(i), next);
    return next;
}

void enterNames(const AttributePtr &attribute,
                std::unordered_map<std::string, AttributePtr> &byName)
{
    byName.emplace(attribute->longName, attribute);
    byName.emplace(attribute->shortName, attribute);
    for (const AttributePtr &child : attribute->children)
        enterNames(child, byName);
}

} // namespace

bool NodeType::isA(std::string_view typeName) const
{
    for (const NodeType *type = this; type; type = type->base) {
        if (type->name == typeName)
            return true;
    }
    return false;
}

AttributePtr NodeType::find(std::string_view attributeName) const
{
    const auto found = byName_.find(std::string(attributeName));
    return found == byName_.end() ? nullptr : found->second;
}

NodeTypes::NodeTypes()
{
    for (const char *table : {kNodeTypeTable, kDagTypeTable})
        read(table);
}

void NodeTypes::read(const char *table)
{
    std::istringstream lines(table);
    std::string line;
    NodeType *type = nullptr;
    std::vector<NewAttributePtr> open; // compounds whose children are being read
    while (std::getline(lines, line)) {
        std::istringstream words(line);
        std::string first;
        if (!(words >> first))
            continue;
        std::string typeName;
        std::string colon;
        std::string baseName;
        if (first == "type" && words >> typeName && (!(words >> colon) || colon == ":")) {
            words >> baseName;
            type = &add(typeName, find(baseName));
            continue;
        }
        if (first == "}") {
            const NewAttributePtr closed = open.back();
            open.pop_back();
            if (open.empty()) {
                type->orderEnd = numberInOrder(*closed, type->orderEnd);
                enterNames(closed, type->byName_);
            }
            continue;
        }
        bool opensChildren = false;
        const NewAttributePtr attribute = parseAttribute(line, opensChildren);
        if (open.empty())
            type->attributes.push_back(attribute);
        else
            open.back()->addChild(attribute);
        if (opensChildren) {
            open.push_back(attribute);
        } else if (open.empty()) {
            type->orderEnd = numberInOrder(*attribute, type->orderEnd);
            enterNames(attribute, type->byName_);
        }
    }
}

NodeType &NodeTypes::add(std::string_view name, const NodeType *base)
{
    types_.push_back(std::make_unique<NodeType>());
    NodeType &type = *types_.back();
    type.name = name;
    type.base = base;
    if (base) {
        type.attributes = base->attributes;
        type.byName_ = base->byName_;
        type.orderEnd = base->orderEnd;
    }
    byName_[type.name] = &type;
    return type;
}

const NodeType *NodeTypes::find(std::string_view name) const
{
    const auto found = byName_.find(std::string(name));
    return found == byName_.end() ? nullptr : found->second;
}

const NodeType &NodeTypes::findOrLearn(std::string_view name, std::string_view base)
{
    const NodeType *known = find(name);
    if (known && (known->isKnown || known->isA(base)))
        return *known;
    NodeType &type = add(name, find(base));
    type.isKnown = false;
    // Attributes that its nodes learn come behind those that it may yet turn out to have.
    type.orderEnd = find("transform")->orderEnd;
    return type;
}

} // namespace host
