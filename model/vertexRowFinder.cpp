// SPDX-License-Identifier: Apache-2.0
#include "model/vertexRowFinder.h"

vertexRowFinder::vertexRowFinder(const rowNameList &names, int firstRow, int endRow)
    : names_(names), firstRow_(firstRow), endRow_(endRow)
{
}

int vertexRowFinder::rowOf(int vertex) const
{
    if (vertex < 0)
        return -1;
    // Its place if the whole shape is loaded; if not, it can only stand further up.
    int first = firstRow_;
    int end = endRow_;
    if (vertex < end - first) {
        end = first + vertex;
        if (names_.vertex(end) == vertex)
            return end;
    }
    while (first < end) {
        const int middle = first + (end - first) / 2;
        if (names_.vertex(middle) < vertex)
            first = middle + 1;
        else
            end = middle;
    }
    return first < endRow_ && names_.vertex(first) == vertex ? first : -1;
}
