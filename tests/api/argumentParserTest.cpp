// SPDX-License-Identifier: Apache-2.0
// What MArgParser makes of a call by the rules of an MSyntax.
#include <maya/MArgList.h>
#include <maya/MArgParser.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>
#include <maya/MSyntax.h>

#include <sstream>

#include "support/mayaSession.h"

namespace
{

class argumentParser : public MayaSession
{
protected:
    argumentParser()
    {
        syntax_.addFlag("-n", "-name", MSyntax::kString);
        syntax_.addFlag("-p", "-point", MSyntax::kDouble, MSyntax::kDouble);
        syntax_.addFlag("-c", "-count", MSyntax::kUnsigned);
        syntax_.addFlag("-inf", "-influence", MSyntax::kString);
        syntax_.addFlag("-lim", "-limit", MSyntax::kLong);
        syntax_.makeFlagMultiUse("name");
        syntax_.makeFlagQueryWithFullArgs("-influence", false);
        syntax_.makeFlagQueryWithFullArgs("-limit", true);
        syntax_.addArg(MSyntax::kLong);
        syntax_.enableQuery();
    }

    // "query name(a) x2 | 5 | b c": the mode, flags with their arguments and how often they are
    // used, arguments and objects; or the error.
    std::string parsed(const std::string &call)
    {
        MArgList list;
        std::istringstream words(call);
        for (std::string word; words >> word;)
            list.addArg(MString(word.c_str()));
        MStatus status;
        const MArgParser parser(syntax_, list, &status);
        if (!status)
            return takeErrors();
        std::string text = parser.isQuery() ? "query" : parser.isEdit() ? "edit" : "";
        for (const char *flag : {"-name", "-p", "count", "-influence", "-limit"}) {
            if (parser.isFlagSet(flag))
                text += std::string(" ") + flag + '(' + argumentsOf(parser, flag) + ") x" +
                        std::to_string(parser.numberOfFlagUses(flag));
        }
        int argument = 0;
        text += parser.getCommandArgument(0, argument) ? " | " + std::to_string(argument) : " |";
        MStringArray objects;
        parser.getObjects(objects);
        for (unsigned int i = 0; i < objects.length(); ++i)
            text += std::string(i == 0 ? " | " : " ") + objects[i].asChar();
        return text;
    }

    MSyntax syntax_;

private:
    static std::string argumentsOf(const MArgParser &parser, const char *flag)
    {
        std::string text;
        MString argument;
        for (unsigned int i = 0; parser.getFlagArgument(flag, i, argument); ++i)
            text += std::string(i == 0 ? "" : " ") + argument.asChar();
        return text;
    }
};

} // namespace

TEST_F(argumentParser, sortsAsBuiltInCommandsAreSorted)
{
    syntax_.setObjectType(MSyntax::kStringObjects, 1, 2);
    const std::pair<const char *, const char *> cases[] = {
        {"7 a b", " | 7 | a b"},
        {"-name x 7 -point 1 -2.5 a -n y", " -name(x) x2 -p(1 -2.5) x1 | 7 | a"},
        {"on a -count 3", " count(3) x1 | 1 | a"},
        {"-q -n", "query -name() x1 |"},
        {"-q -limit -influence hip 7 a", "query -influence(hip) x1 -limit() x1 | 7 | a"},
        {"-q -limit 4 7 a", "query -limit(4) x1 | 7 | a"},
        {"-q -influence", "Invalid arguments for flag 'inf'.  Expected ( string ), got [ ]"},
        {"7 a -count -3",
         "Invalid arguments for flag 'c'.  Expected ( unsigned int ), got [ int ]"},
        {"7 a -p 1", "Invalid arguments for flag 'p'.  Expected ( double, double ), got [ int ]"},
        {"7 a -c 1 -count 2", "Flag '-c' can't be used more than once"},
        {"-e 7 a", "Invalid flag '-e'"},
        {"x a", "Invalid arguments 'x'.  Expected ( int ), got [ string ]"},
        {"7", "Wrong number of arguments on call to ."},
        {"7 a b c", "Wrong number of arguments on call to ."},
    };
    for (const auto &[call, expected] : cases)
        EXPECT_EQ(parsed(call), expected) << call;
}

TEST_F(argumentParser, takesTheSelectionForObjects)
{
    syntax_.setObjectType(MSyntax::kSelectionList, 1);
    syntax_.useSelectionAsDefault(true);
    EXPECT_EQ(parsed("7"), "Wrong number of arguments on call to .");
    mel("select -r persp top");
    EXPECT_EQ(parsed("7"), " | 7 | persp top");
    EXPECT_EQ(parsed("7 side"), " | 7 | side");
}

TEST_F(argumentParser, keepsTheNumbersOfAProgramExactly)
{
    MArgList list;
    list.addArg(0.1 + 0.2);
    list.addArg(-3);
    double number = 0.0;
    int whole = 0;
    EXPECT_TRUE(list.get(0, number) && list.get(1, whole));
    EXPECT_EQ(number, 0.1 + 0.2);
    EXPECT_EQ(whole, -3);
    EXPECT_FALSE(list.get(2, whole));
}
