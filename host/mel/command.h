// SPDX-License-Identifier: Apache-2.0
// Commands as rows of a table: name, flags, function.
//
// A command of a family is a function in host/mel/commands; its flags are declared beside it, and
// the arguments reach it already sorted into flags and objects. A command fails by throwing
// host::Error with the text after "line N: ".
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "mel/melValue.h"
#include "scene/session.h"

namespace host::mel
{

class Interpreter;

// One evaluated argument: its text, and whether it stood in quotes (a quoted "-1" is no flag).
struct Operand {
    std::string_view text;
    bool isQuoted = false;
    // Throw Error "Invalid arguments ..." when the text is no such thing. Quotes make no
    // difference, and the words true, on, yes (1) and false, off, no (0) are numbers too, as in
    // MEL.
    double number() const;
    long long integer() const; // a fraction is cut off
    bool boolean() const;      // any number but 0 is true
    std::string string() const { return std::string(text); }
};

struct Flag {
    std::string shortName; // without dash; may be empty
    std::string longName;
    // One letter per argument: b boolean, i integer, u integer from 0 on, d number, s string.
    std::string arguments = {};
    enum Options : unsigned {
        none = 0,
        multiUse = 1,        // may repeat
        queryTakesValue = 2, // has its argument in query mode as well
        queryNeedsValue = 6, // and is refused there without it
        rest = 8             // takes all operands up to the next flag
    };
    unsigned options = none;

    bool hasOption(Options option) const { return (options & option) == option; }
};

// By short or long name, without dash; null if there is none.
const Flag *findFlag(const std::vector<Flag> &flags, std::string_view name);

// How many objects a call takes. Commands that can do with the selection take none, too.
struct Objects {
    static constexpr std::size_t kAny = static_cast<std::size_t>(-1);
    std::size_t least = 0;
    std::size_t most = kAny;
};
// Throws "Wrong number of arguments on call to NAME.".
void requireObjectCount(std::string_view command, std::size_t count, const Objects &wanted);

// What a command can be asked to do; -query and -edit are unknown flags to one that can not.
struct Modes {
    enum Bits : unsigned { create = 1, query = 2, edit = 4 };
};

// The arguments of one call, sorted.
class Arguments
{
public:
    enum class Mode { create, query, edit };
    Mode mode = Mode::create;
    bool isQuery() const { return mode == Mode::query; }
    bool isEdit() const { return mode == Mode::edit; }
    std::vector<Operand> objects; // what belongs to no flag, in order
    bool isFunctionForm = false;  // f("-x", 1) and not f -x 1

    // By long name. A flag that is not declared is a programming error (assert).
    bool has(std::string_view longName) const;
    std::size_t uses(std::string_view longName) const;
    // The operands of the n-th use, none where the flag is asked for in query mode; REQUIRES:
    // uses(longName) > use.
    const std::vector<Operand> &of(std::string_view longName, std::size_t use = 0) const;
    // The first operand of the first use, or the fallback.
    double number(std::string_view longName, double fallback) const;
    long long integer(std::string_view longName, long long fallback) const;
    bool boolean(std::string_view longName, bool fallback) const;
    std::string string(std::string_view longName, std::string_view fallback = "") const;
    // Flags in the order of the call: long name and use, for commands to which the order matters.
    std::vector<std::pair<std::string, std::size_t>> order;

private:
    friend class ArgumentSorter;
    struct UsedFlag {
        const Flag *flag;
        std::vector<std::vector<Operand>> uses;
    };
    const UsedFlag *find(std::string_view longName) const;
    const Operand *first(std::string_view longName) const;

    const std::vector<Flag> *declared_ = nullptr; // the command's
    std::vector<UsedFlag> used_;
};

class PendingWeights;

// What a command may touch. `currentNode` is the node that relative plugs (".t") and addAttr,
// rename -uid and lockNode without a name mean while a file is read; null otherwise.
struct Context {
    Session &session;
    Interpreter &interpreter;
    NodePtr *currentNode = nullptr;
    bool isReadingFile = false;
    std::size_t fileSize = 0; // bytes of the file that is read: bounds what it may announce
    Scene *target = nullptr;  // the scene that a file is read into
    PendingWeights *pendingWeights = nullptr; // of the file that is read; its reader writes them

    Scene &scene() { return target ? *target : session.scene(); }
};

// Fails by throwing Error; with an empty text if what went wrong has been shown already.
using CommandFunction = std::function<MelValue(Context &, const Arguments &)>;

// A row of the table: {"connectAttr", {{"f", "force"}}, connectAttr, {2, 2}}. What its columns do
// not allow never reaches the function.
struct Command {
    std::string name;
    std::vector<Flag> flags;
    CommandFunction run;
    Objects objects = {};           // any number
    unsigned modes = Modes::create; // Modes::create | Modes::query, say
    // The objects of a query or an edit where they differ: polyCube makes something out of nothing,
    // and asks one node.
    std::optional<Objects> targets = std::nullopt;
    // Whether a file may contain it.
    bool isFileStatement = false;
    // Takes its operands unsorted, flags among them: plug-in commands, which sort with MSyntax.
    bool takesRawArguments = false;
};

class CommandTable
{
public:
    // False if the name is taken.
    bool add(Command command);
    bool remove(std::string_view name);
    const Command *find(std::string_view name) const;
    std::vector<std::string> names() const; // sorted

    // The same, kept alive for a call in which it may be removed.
    std::shared_ptr<const Command> hold(std::string_view name) const;

    // Sorts evaluated operands by the command's columns, which must outlive the result. Throws
    // Error: "Invalid flag '-xyz'", too few or wrong arguments for a flag, a flag repeated that may
    // not, "Wrong number of arguments on call to NAME.".
    //
    // In query mode, flags that stand before -query take their arguments as ever (skinPercent -ib
    // 0.1 -q -v), those after it only with queryTakesValue, and only if what follows fits. In the
    // function form quoted flags are flags; in the imperative form only words are.
    static Arguments sort(const Command &command, const std::vector<Operand> &operands,
                          bool isFunctionForm);

private:
    std::unordered_map<std::string, std::shared_ptr<const Command>> commands_;
};

} // namespace host::mel
