// SPDX-License-Identifier: Apache-2.0
#include <maya/MSyntax.h>

#include <algorithm>

#include "api/apiAccess.h"
#include "api/arguments.h"

using host::SyntaxTable;

namespace
{

constexpr unsigned kAnyNumber = ~0u;

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

// What a flag of the table takes: letters as in mel::Flag.
char letterOf(MSyntax::MArgType type)
{
    switch (type) {
    case MSyntax::kBoolean:
        return 'b';
    case MSyntax::kLong:
        return 'i';
    case MSyntax::kUnsigned:
        return 'u';
    case MSyntax::kDouble:
    case MSyntax::kDistance:
    case MSyntax::kAngle:
    case MSyntax::kTime:
        return 'd';
    default:
        return 's';
    }
}

MStatus addOption(SyntaxTable &table, const char *name, host::mel::Flag::Options option)
{
    const host::mel::Flag *known = table.find(name ? name : "");
    if (!known)
        return MStatus::kInvalidParameter;
    auto &flags = table.command.flags;
    flags[static_cast<std::size_t>(known - flags.data())].options |= option;
    return MStatus::kSuccess;
}

void addMode(SyntaxTable &table, unsigned mode, bool isSupported)
{
    unsigned &modes = table.command.modes;
    modes = isSupported ? modes | mode : modes & ~mode;
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
    host::mel::Flag flag{bareName(shortName), bareName(longName)};
    const bool hasGoodNames =
        !flag.shortName.empty() && flag.shortName.size() < 4 && flag.longName.size() > 3;
    SyntaxTable &table = ownTable(table_);
    if (!hasGoodNames || table.find(flag.longName))
        return MStatus::kFailure;
    if (table.find(flag.shortName))
        flag.shortName.clear();
    for (const MArgType type : {argType1, argType2, argType3, argType4, argType5, argType6})
        if (type != kNoArg && type != kInvalidArgType)
            flag.arguments += letterOf(type);
    table.command.flags.push_back(std::move(flag));
    return MStatus::kSuccess;
}

MStatus MSyntax::makeFlagMultiUse(const char *flag)
{
    return addOption(ownTable(table_), flag, host::mel::Flag::multiUse);
}

MStatus MSyntax::makeFlagQueryWithFullArgs(const char *flag, bool queryArgsAreOptional)
{
    return addOption(ownTable(table_), flag,
                     queryArgsAreOptional ? host::mel::Flag::queryTakesValue
                                          : host::mel::Flag::queryNeedsValue);
}

MStatus MSyntax::addArg(MArgType arg)
{
    if (arg <= kNoArg || arg >= kLastArgType)
        return MStatus::kInvalidParameter;
    ownTable(table_).arguments += letterOf(arg);
    return MStatus::kSuccess;
}

void MSyntax::useSelectionAsDefault(bool useSelectionList)
{
    ownTable(table_).usesSelection = useSelectionList;
}

MStatus MSyntax::setObjectType(MObjectFormat objectFormat, unsigned int minimumObjects)
{
    return setObjectType(objectFormat, minimumObjects, kAnyNumber);
}

MStatus MSyntax::setObjectType(MObjectFormat objectFormat, unsigned int minimumObjects,
                               unsigned int maximumObjects)
{
    const bool isFormat = objectFormat > kInvalidObjectFormat && objectFormat < kLastObjectFormat;
    if (!isFormat || minimumObjects > maximumObjects)
        return MStatus::kInvalidParameter;
    ownTable(table_).objectFormat = objectFormat;
    setMinObjects(minimumObjects);
    setMaxObjects(maximumObjects);
    return MStatus::kSuccess;
}

void MSyntax::setMinObjects(unsigned int count)
{
    ownTable(table_).objects.least = count;
}
void MSyntax::setMaxObjects(unsigned int count)
{
    ownTable(table_).objects.most = count == kAnyNumber ? host::mel::Objects::kAny : count;
}
void MSyntax::enableQuery(bool supportsQuery)
{
    addMode(ownTable(table_), host::mel::Modes::query, supportsQuery);
}
void MSyntax::enableEdit(bool supportsEdit)
{
    addMode(ownTable(table_), host::mel::Modes::edit, supportsEdit);
}
bool MSyntax::canQuery() const
{
    return (host::tableOf(*this).command.modes & host::mel::Modes::query) != 0;
}
bool MSyntax::canEdit() const
{
    return (host::tableOf(*this).command.modes & host::mel::Modes::edit) != 0;
}
