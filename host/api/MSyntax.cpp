// SPDX-License-Identifier: Apache-2.0
#include <maya/MSyntax.h>

#include <algorithm>

#include "api/apiAccess.h"
#include "api/arguments.h"

using host::FlagRule;
using host::SyntaxTable;

namespace
{

// The table as one that no copy of the syntax shares.
SyntaxTable &ownTable(std::shared_ptr<SyntaxTable> &table)
{
    table = table ? std::make_shared<SyntaxTable>(*table) : std::make_shared<SyntaxTable>();
    return *table;
}

std::string bareName(const char *name)
{
    const std::string text = name ? name : "";
    return !text.empty() && text[0] == '-' ? text.substr(1) : text;
}

FlagRule *findRule(SyntaxTable &table, const char *flag)
{
    return const_cast<FlagRule *>(table.find(flag ? flag : ""));
}

} // namespace

const SyntaxTable &host::tableOf(const MSyntax &syntax)
{
    static const SyntaxTable kEmpty;
    const auto &table = ApiAccess::table(syntax);
    return table ? *table : kEmpty;
}

MSyntax::MSyntax() = default;
MSyntax::MSyntax(const MSyntax &other) = default;
MSyntax::~MSyntax() = default;
MSyntax &MSyntax::operator=(const MSyntax &other) = default;
const char *MSyntax::className()
{
    return "MSyntax";
}

// A short name that an earlier flag has stays with that flag; the later one is known by its long
// name alone. What Maya does there is not documented.
MStatus MSyntax::addFlag(const char *shortName, const char *longName, MArgType argType1,
                         MArgType argType2, MArgType argType3, MArgType argType4, MArgType argType5,
                         MArgType argType6)
{
    FlagRule rule;
    rule.shortName = bareName(shortName);
    rule.longName = bareName(longName);
    const bool hasGoodNames =
        !rule.shortName.empty() && rule.shortName.size() < 4 && rule.longName.size() > 3;
    SyntaxTable &table = ownTable(table_);
    if (!hasGoodNames || table.find(rule.longName))
        return MStatus::kFailure;
    if (table.find(rule.shortName))
        rule.shortName.clear();
    for (const MArgType type : {argType1, argType2, argType3, argType4, argType5, argType6})
        if (type != kNoArg && type != kInvalidArgType)
            rule.types.push_back(type);
    table.flags.push_back(std::move(rule));
    return MStatus::kSuccess;
}

MStatus MSyntax::makeFlagMultiUse(const char *flag)
{
    FlagRule *rule = findRule(ownTable(table_), flag);
    if (!rule)
        return MStatus::kInvalidParameter;
    rule->isMultiUse = true;
    return MStatus::kSuccess;
}

MStatus MSyntax::makeFlagQueryWithFullArgs(const char *flag, bool queryArgsAreOptional)
{
    FlagRule *rule = findRule(ownTable(table_), flag);
    if (!rule)
        return MStatus::kInvalidParameter;
    rule->queryTakesArguments = true;
    rule->queryArgumentsAreOptional = queryArgsAreOptional;
    return MStatus::kSuccess;
}

MStatus MSyntax::addArg(MArgType arg)
{
    if (arg <= kNoArg || arg >= kLastArgType)
        return MStatus::kInvalidParameter;
    ownTable(table_).arguments.push_back(arg);
    return MStatus::kSuccess;
}

void MSyntax::useSelectionAsDefault(bool useSelectionList)
{
    ownTable(table_).usesSelection = useSelectionList;
}

MStatus MSyntax::setObjectType(MObjectFormat objectFormat, unsigned int minimumObjects)
{
    return setObjectType(objectFormat, minimumObjects, ~0u);
}

MStatus MSyntax::setObjectType(MObjectFormat objectFormat, unsigned int minimumObjects,
                               unsigned int maximumObjects)
{
    const bool isFormat = objectFormat > kInvalidObjectFormat && objectFormat < kLastObjectFormat;
    if (!isFormat || minimumObjects > maximumObjects)
        return MStatus::kInvalidParameter;
    SyntaxTable &table = ownTable(table_);
    table.objectFormat = objectFormat;
    table.minimumObjects = minimumObjects;
    table.maximumObjects = maximumObjects;
    return MStatus::kSuccess;
}

void MSyntax::setMinObjects(unsigned int count)
{
    ownTable(table_).minimumObjects = count;
}
void MSyntax::setMaxObjects(unsigned int count)
{
    ownTable(table_).maximumObjects = count;
}
void MSyntax::enableQuery(bool supportsQuery)
{
    ownTable(table_).canQuery = supportsQuery;
}
void MSyntax::enableEdit(bool supportsEdit)
{
    ownTable(table_).canEdit = supportsEdit;
}
bool MSyntax::canQuery() const
{
    return host::tableOf(*this).canQuery;
}
bool MSyntax::canEdit() const
{
    return host::tableOf(*this).canEdit;
}
