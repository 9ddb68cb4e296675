// SPDX-License-Identifier: Apache-2.0
// Text between Maya and Qt. Node names may hold any character, so both sides meet in UTF-8: a plain
// conversion takes the text for Latin-1 in the oldest Qt.
#pragma once

#include <QString>

#include <maya/MString.h>
#include <maya/MStringArray.h>

inline QString textOf(const MString &text)
{
    return QString::fromUtf8(text.asUTF8());
}

inline MString mayaTextOf(const QString &text)
{
    MString result;
    result.setUTF8(text.toUtf8().constData());
    return result;
}

// A number as MEL reads it.
inline QString textOf(double number)
{
    MString text;
    text += number;
    return textOf(text);
}

// A message with `argument` in its place "^1s".
inline MString messageWith(const char *message, const MString &argument)
{
    MStringArray arguments;
    arguments.append(argument);
    MString result;
    result.format(message, arguments);
    return result;
}

inline MString messageWith(const char *message, int number)
{
    MString text;
    text += number;
    return messageWith(message, text);
}
