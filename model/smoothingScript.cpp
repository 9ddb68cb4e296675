// SPDX-License-Identifier: Apache-2.0
#include "model/smoothingScript.h"

QString vertexWords(const QVector<int> &vertexRows, const weightRows &rows,
                    const rowNameList &rowNames, const QStringList &nodes)
{
    QString words;
    for (int i = 0; i < vertexRows.size(); ++i) {
        const int row = vertexRows.at(i);
        words += nodes.at(shapeIndexOf(rows.at(row)));
        words += QLatin1Char('.');
        words += rowNames.text(row);
        words += QLatin1Char(' ');
    }
    return words;
}

QString smoothingScript(const QString &tolerance, int iterations, const QString &skinCluster)
{
    return QLatin1String("skinCluster -e -sw ") + tolerance + QLatin1String(" -swi ") +
           QString::number(iterations) + QLatin1String(" -omi 1 ") + skinCluster + QLatin1Char(';');
}

QString smoothingOfVertices(const QString &vertices, const QString &smoothing)
{
    return QLatin1String("select -r ") + vertices + QLatin1Char(';') + smoothing;
}

QString paintSetUpScript(const QString &vertices, const QString &joint)
{
    return QLatin1String("selectType -ocm -alc false;\n"
                         "selectType -ocm -vertex true;\n"
                         "select -r ") +
           vertices +
           QLatin1String(";\n"
                         "ArtPaintSkinWeightsTool;\n"
                         "artAttrSkinToolScript 4;\n"
                         "artAttrSkinJointMenu(\"artJoinListPopupMenu\", \"artAttrSkinPaintCtx\" "
                         ");\n"
                         "artAttrPaintOperation artAttrSkinPaintCtx Smooth;\n"
                         "artAttrSkinPaintCtx -e -skinPaintMode 1 artAttrSkinContext;\n"
                         "artSkinSelectInfluence artAttrSkinPaintCtx ") +
           joint + QLatin1String(";\n");
}

QString paintFloodScript(const QString &opacity)
{
    return QLatin1String("artAttrSkinPaintCtx -e -opacity ") + opacity +
           QLatin1String(" `currentCtx`;\n"
                         "artAttrSkinPaintCtx -e -clear `currentCtx`;\n");
}
