// SPDX-License-Identifier: Apache-2.0
#include "fuzz/fuzzCase.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <regex>

#include "api/process.h"
#include "fuzz/randomMel.h"
#include "ma/sceneWriter.h"
#include "scene/dagPath.h"

namespace
{

// The exit code of a case that does not hold; crashes have signals.
constexpr int kDoesNotHold = 3;

[[noreturn]] void fail(const std::string &text)
{
    std::fprintf(stderr, "%s\n", text.c_str());
    std::_Exit(kDoesNotHold);
}

// As it would be saved, without sizes of arrays: what a size announces may be elements that hold
// nothing.
std::string textOf(host::Process &maya)
{
    static const std::regex size("\n\tsetAttr -s [0-9]+ \"[^\" ]*\";");
    std::string text;
    host::ma::StatementWriter out([&text](std::string_view piece) { text += piece; });
    host::ma::SceneWriter(out, maya.session().scene()).writeFile("case.ma");
    out.finish();
    return std::regex_replace(text, size, "");
}

// The first line in which two texts differ.
std::string difference(const std::string &first, const std::string &second)
{
    std::size_t begin = 0;
    for (std::size_t i = 0; i < std::min(first.size(), second.size()) && first[i] == second[i]; ++i)
        begin = first[i] == '\n' ? i + 1 : begin;
    return "  " + first.substr(begin, first.find('\n', begin) - begin) + "\n  " +
           second.substr(begin, second.find('\n', begin) - begin);
}

// What was shown as errors since it was made.
class Errors
{
public:
    explicit Errors(host::Process &maya) : output_(maya.session().output())
    {
        id_ = output_.addListener([this](const std::string &text, host::MessageKind kind) {
            if (kind == host::MessageKind::error)
                text_ += text + '\n';
        });
    }
    ~Errors() { output_.removeListener(id_); }
    const std::string &text() const { return text_; }

private:
    host::Output &output_;
    host::Output::Id id_;
    std::string text_;
};

bool run(host::Process &maya, const std::string &mel)
{
    host::mel::RunOptions options;
    options.undo = true;
    return maya.interpreter().run(mel, options).succeeded;
}

bool open(host::Process &maya, const std::string &file)
{
    return run(maya, "file -f -o \"" + file + '"');
}

void checkSaving(host::Process &maya, const std::string &folder)
{
    const std::string before = textOf(maya);
    const std::string saved = folder + "/saved.ma";
    const Errors errors(maya);
    if (!run(maya, "file -rename \"" + saved + "\"; file -f -save -type \"mayaAscii\""))
        fail("What was opened can not be saved: " + errors.text());
    if (!open(maya, saved))
        fail("What was saved does not open: " + errors.text());
    const std::string after = textOf(maya);
    if (after != before)
        fail("What was saved opens as another scene:\n" + difference(before, after));
}

// Nodes, some plugs of them, and vertices.
std::vector<std::string> namesIn(host::Scene &scene)
{
    std::vector<std::string> names;
    for (const host::NodePtr &node : scene.nodes()) {
        if (node->isDefault())
            continue;
        const std::string name = node->uniqueName();
        names.insert(names.end(), 8, name);
        for (const char *plug : {".t", ".tx", ".wm", ".wl[0].w", ".ma[1]", ".liw", ".vtx[0:2]",
                                 ".v", ".vtx[*]", ".ip[0].ig", ".i", ".bogus"})
            names.push_back(name + plug);
    }
    return names;
}

} // namespace

void checkFile(host::Process &maya, const std::string &file, const std::string &folder)
{
    run(maya, "createNode joint -n \"stays\"");
    const std::string before = textOf(maya);
    const Errors errors(maya);
    if (open(maya, file)) {
        checkSaving(maya, folder);
        return;
    }
    if (errors.text().find(file) == std::string::npos)
        fail("A file was refused without its name: " + errors.text());
    if (textOf(maya) != before)
        fail("A file that was refused changed the scene:\n" + difference(before, textOf(maya)));
}

void checkMel(host::Process &maya, const std::string &scene, const std::string &folder,
              Chance &chance)
{
    if (!open(maya, scene))
        fail("The scene does not open");
    const std::string before = textOf(maya);
    const RandomMel mel(maya.interpreter().commands(), namesIn(maya.session().scene()));
    std::ofstream script(folder + "/case.mel");
    for (std::size_t left = 1 + chance.below(8); left > 0; --left) {
        const std::string statement = mel.statement(chance);
        script << statement << ";\n" << std::flush;
        run(maya, statement);
    }
    if (chance.oneIn(2)) {
        checkSaving(maya, folder);
        return;
    }
    while (maya.session().undo().undoCount() > 0) {
        if (!maya.session().undoOnce())
            fail("A step can not be undone");
    }
    if (textOf(maya) != before)
        fail("After undo the scene is another:\n" + difference(before, textOf(maya)));
}
