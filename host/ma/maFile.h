// SPDX-License-Identifier: Apache-2.0
// Reading and writing Maya ASCII files.
//
// Reading runs the file's statements through the MEL interpreter, against a scene of its own and
// with only those commands that a file may hold. Writing gives a file that reads back equal.
//
// Paths are absolute, or kStandardStream (ma/standardStream.h).
#pragma once

#include <memory>
#include <string>
#include <unordered_set>

#include "mel/interpreter.h"

namespace host::ma
{

// Reads a file into a new scene. Throws Error ("PATH line 12: ...") on a missing, unreadable, cut
// off, malformed or hostile file, and when progress() cancelled; the session's scene is untouched.
// What can be left out (a reference, a connection to a node that is not there, an unknown command)
// is shown as a warning with file and line.
std::unique_ptr<Scene> readFile(mel::Interpreter &interpreter, const std::string &path);

// Reads a file and puts it in place of the session's scene, with the events of opening; one from
// standard input has no name. Throws Error as readFile does.
void openFile(mel::Interpreter &interpreter, const std::string &path);

// Reads the file's statements into the session's scene (file -import), recorded for undo if the
// session records. Names go into `nameSpace` if it is not empty; of those that clash each gets
// `prefix` and an underscore if that is not empty, and a number where it is taken all the same.
void importFile(mel::Interpreter &interpreter, const std::string &path,
                const std::string &nameSpace, const std::string &prefix);

// Writes the scene in the host's own form. The file is replaced only when all of it could be
// written. Throws Error.
void writeFile(Session &session, const std::string &path);
// The same for some nodes of the scene, see SceneWriter::writePart.
void writePart(Session &session, const std::string &path,
               const std::unordered_set<const Node *> &nodes);

// The same, but keeps the text of the file that the scene was read from or last saved to, if it is
// still there, wherever it says what the scene holds. The outcome is read again before anything is
// written: if it does not say the same as the scene, the host's own form is written, with a
// warning.
void rewriteFile(mel::Interpreter &interpreter, const std::string &path);

// Rewrites the scene to what is its file from now on: the session has its name and is unmodified.
// A scene without changes that is in that file already is not written. Throws Error.
void saveFile(mel::Interpreter &interpreter, const std::string &path);

// The path from the root, without "..". Throws Error where the working folder is gone.
std::string absolutePath(const std::string &path);

} // namespace host::ma
