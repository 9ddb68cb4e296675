// SPDX-License-Identifier: Apache-2.0
#include "model/rowNameList.h"

namespace
{

const int kPrefixLength = 4; // of "vtx["
const int kSuffixLength = 1; // of "]"

} // namespace

void rowNameList::appendShape(const QString &name)
{
    names_.append(-1 - static_cast<int>(shapeNames_.size()));
    shapeNames_.append(name);
}

QString rowNameList::text(int row) const
{
    if (row < 0 || row >= size())
        return QString();
    const int name = names_.at(row);
    return name >= 0 ? vertexRowName(name) : shapeNames_.at(-1 - name);
}

int rowNameList::vertex(int row) const
{
    if (row < 0 || row >= size())
        return -1;
    return qMax(-1, names_.at(row));
}

QString vertexRowName(int vertex)
{
    return QString::fromLatin1("vtx[%1]").arg(vertex);
}

int vertexOfRowName(const QString &name, bool *ok)
{
    const int digits = static_cast<int>(name.size()) - kPrefixLength - kSuffixLength;
    return name.mid(kPrefixLength, qMax(0, digits)).toInt(ok);
}
