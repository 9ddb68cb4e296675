// SPDX-License-Identifier: Apache-2.0
// A file that the next saving follows: its text, statement by statement, and what each is about.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "mel/interpreter.h"
#include "scene/scene.h"

namespace host::ma
{

struct TemplateStatement {
    enum class Kind {
        other, // what is copied as it is: not understood, or about nothing that can change
        version,
        reference,
        plugin,
        unit,
        info,
        trailing,
        createNode,
        selectNode,
        uuid,
        addAttribute,
        setAttribute,
        nodeLock,
        instance,
        connection,
        keptConnection
    };
    Kind kind = Kind::other;
    std::size_t begin = 0; // in the text: blanks and comments before it included
    std::size_t size = 0;
    // Of the template's scene: the current node, the instanced one, or a connection's destination.
    Node *node = nullptr;
    Node *parent = nullptr; // of an instance
    // Top-level attribute of addAttr and setAttr; of a connection the destination's.
    const Attribute *attribute = nullptr;
    PlugIndices indices; // of the destination
    // Key of fileInfo; references, plug-ins and what trails as the scene keeps them.
    std::string fact;
};

struct Template {
    Scene scene{Scene::Cameras::leftToFile}; // what the text means
    std::string text;
    std::vector<TemplateStatement> statements; // in the text's order, without gaps
    std::string codeset;                       // of the file

    std::string_view textOf(const TemplateStatement &statement) const
    {
        return std::string_view(text).substr(statement.begin, statement.size);
    }
    std::string_view rest() const // comments behind the last statement
    {
        const std::size_t end =
            statements.empty() ? 0 : statements.back().begin + statements.back().size;
        return std::string_view(text).substr(end);
    }
};

// Throws Error when the file can't be read.
std::unique_ptr<Template> readTemplate(mel::Interpreter &interpreter, const std::string &path);

} // namespace host::ma
