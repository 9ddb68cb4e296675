// SPDX-License-Identifier: Apache-2.0
#include "model/vertexRowFinder.h"

vertexRowFinder::vertexRowFinder(const rowNameList &names, int firstRow, int endRow)
    : names_(names), firstRow_(firstRow), endRow_(endRow)
{
}

int vertexRowFinder::rowOf(int vertex)
{
    if (vertex < 0)
        return -1;
    if (vertex < endRow_ - firstRow_ && names_.vertex(firstRow_ + vertex) == vertex)
        return firstRow_ + vertex;
    if (rowByVertex_.isEmpty()) {
        for (int row = firstRow_; row < endRow_; ++row)
            rowByVertex_.insert(names_.vertex(row), row);
    }
    return rowByVertex_.value(vertex, -1);
}
