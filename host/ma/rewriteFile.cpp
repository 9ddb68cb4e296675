// SPDX-License-Identifier: Apache-2.0
// Saving in the words of the file that the scene comes from. What is written has been read again
// and compared: it rests on the writer of whole scenes and on one comparison, not on how it was
// put together.
#include <new>
#include <optional>

#include "ma/maFile.h"
#include "ma/outputFile.h"
#include "ma/reader.h"
#include "ma/sceneDifference.h"
#include "ma/sessionMark.h"
#include "ma/standardStream.h"
#include "ma/textMerge.h"
#include "scene/error.h"

namespace host::ma
{

namespace
{

// In the file's own codeset where that has all characters, else in UTF-8, which the header says.
std::string encoded(std::string text, const std::string &codeset)
{
    if (std::optional<std::string> bytes = encodeText(text, codeset))
        return *bytes;
    constexpr std::string_view kWords = "//Codeset:";
    const std::size_t line = text.find(kWords);
    if (line != std::string::npos) {
        const std::size_t value = line + kWords.size();
        text.replace(value, text.find_first_of("\r\n", value) - value, " UTF-8");
    }
    return text;
}

// What the text lacks or has otherwise; attributes with other values go into `values`.
std::string differenceOf(mel::Interpreter &interpreter, const std::string &text,
                         DifferentValues &values)
{
    Scene scene(Scene::Cameras::leftToFile);
    try {
        Reader(interpreter, "saved text", &text, scene, nullptr).run();
    } catch (const Error &error) {
        return error.what();
    }
    return firstDifference(scene, interpreter.session().scene(), &values);
}

std::string mergedText(const Template &before, Scene &now, const DifferentValues &writtenAnew,
                       const std::string &name)
{
    TextMerge merge(before, now);
    merge.writtenAnew.insert(writtenAnew.begin(), writtenAnew.end());
    mergeFacts(merge);
    mergeBlocks(merge);
    mergePlaces(merge);
    mergeConnections(merge);
    return merge.text(name);
}

// Nothing when there is no file to follow, or it takes another text to say what the scene holds.
std::optional<std::string> checkedText(mel::Interpreter &interpreter, const std::string &path)
{
    Scene &scene = interpreter.session().scene();
    std::unique_ptr<Template> before;
    try {
        if (!scene.facts.path.empty())
            before = readTemplate(interpreter, scene.facts.path);
    } catch (const Error &) { // gone or broken by now
    }
    if (!before || before->statements.empty())
        return std::nullopt;
    const bool isElsewhere = path != scene.facts.path && path != kStandardStream;
    const std::string name = isElsewhere ? path.substr(path.rfind('/') + 1) : std::string();
    std::string difference;
    DifferentValues writtenAnew;
    for (unsigned attempt = 0; attempt < 2 && difference.empty(); ++attempt) {
        const std::string text =
            encoded(mergedText(*before, scene, writtenAnew, name), before->codeset);
        DifferentValues values;
        difference = differenceOf(interpreter, text, values);
        if (difference.empty() && values.empty())
            return text;
        writtenAnew = std::move(values);
    }
    if (difference.empty())
        difference = "the values of " + writtenAnew.front().first->uniqueName() + '.' +
                     writtenAnew.front().second->longName;
    interpreter.session().output().warning(
        path + ": The text of the file could not be kept; the scene is written anew (" +
        difference + ").");
    return std::nullopt;
}

} // namespace

void rewriteFile(mel::Interpreter &interpreter, const std::string &path)
{
    Session &session = interpreter.session();
    std::optional<std::string> text;
    try {
        const SessionMark mark(session.isWritingFile);
        text = checkedText(interpreter, path);
    } catch (const std::bad_alloc &) { // the host's own form takes no memory to speak of
    }
    if (text) {
        const SessionMark mark(session.isWritingFile);
        OutputFile file(path);
        file.write(*text);
        file.commit();
    } else {
        writeFile(session, path);
    }
}

} // namespace host::ma
