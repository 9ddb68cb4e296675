// SPDX-License-Identifier: Apache-2.0
#include "model/selectionSignature.h"

#include <QVector>

#include "model/mayaText.h"

#include <maya/MDagPath.h>
#include <maya/MFn.h>
#include <maya/MFnSingleIndexedComponent.h>
#include <maya/MIntArray.h>
#include <maya/MStringArray.h>

namespace
{

void appendLine(const MString &text, QByteArray &signature)
{
    signature += textOf(text).toUtf8();
    signature += '\n';
}

// As numbers: the names of scattered vertices would be a text for each.
void appendElements(const MObject &component, QByteArray &signature)
{
    MIntArray elements;
    MFnSingleIndexedComponent(component).getElements(elements);
    QVector<int> numbers(static_cast<int>(elements.length()));
    elements.get(numbers.data());
    signature += QByteArray::number(component.apiType()) + ' ';
    signature += QByteArray::number(numbers.size()) + '\n';
    signature.append(reinterpret_cast<const char *>(numbers.constData()),
                     numbers.size() * static_cast<int>(sizeof(int)));
}

} // namespace

QByteArray signatureOf(const MSelectionList &selection)
{
    QByteArray signature = QByteArray::number(selection.length()) + '\n';
    for (unsigned int i = 0; i < selection.length(); ++i) {
        MDagPath path;
        MObject component;
        if (selection.getDagPath(i, path, component) &&
            component.hasFn(MFn::kSingleIndexedComponent)) {
            appendLine(path.fullPathName(), signature);
            appendElements(component, signature);
            continue;
        }
        MStringArray names;
        selection.getSelectionStrings(i, names);
        for (unsigned int n = 0; n < names.length(); ++n)
            appendLine(names[n], signature);
    }
    return signature;
}
