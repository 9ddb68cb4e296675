// SPDX-License-Identifier: Apache-2.0
// What the row headers say: a shape's name over its block, "vtx[12]" beside a vertex.
//
// A vertex row is kept as its vertex's number and turned into text when somebody reads it: a table
// of 100,000 rows shows forty of them. Needs neither Maya nor a widget.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class rowNameList
{
public:
    void reserve(int rows) { names_.reserve(rows); }
    void appendShape(const QString &name);
    // REQUIRES: vertex >= 0.
    void appendVertex(int vertex) { names_.append(vertex); }

    int size() const { return static_cast<int>(names_.size()); }
    // Empty for a row outside the list.
    QString text(int row) const;
    // The vertex's number in its shape; -1 for a shape row and for a row outside the list.
    int vertex(int row) const;

private:
    QVector<int> names_; // a vertex number, or -1 - (index in shapeNames_)
    QStringList shapeNames_;
};

QString vertexRowName(int vertex);

// The number between the brackets of a vertex row's name: what is left without the first four
// characters and the last. `ok` tells whether that is a number.
int vertexOfRowName(const QString &name, bool *ok);
