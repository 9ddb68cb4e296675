// SPDX-License-Identifier: Apache-2.0
// The table of skin weights: a Qt item model over the weight list, and the operations on it.
//
// A table row is a shape row or a vertex row, a table column a joint column; weightRow.h draws
// them. The model copies the weights out of the scene when it loads and never writes to the scene
// itself: an edit goes through Maya's command engine and comes back as a refresh. It follows Maya's
// events from its construction to its destruction. Every operation that a control starts is a slot;
// each has a source of its own.
#pragma once

#include <QAbstractTableModel>
#include <QItemSelection>
#include <QModelIndex>
#include <QVariant>

#include "model/cellAppearance.h"
#include "model/lockState.h"
#include "model/weightList.h"

#include <maya/MMessage.h>

class QTableView;
class wholeListRounding;

class weightTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit weightTableModel(QObject *parent);
    ~weightTableModel() override;

    // The view whose columns the filter hides and whose selection the operations act on. It must
    // show this model, and live as long.
    void setView(QTableView *view) { view_ = view; }

    const weightList &weights() const { return weights_; }
    const lockState &locks() const { return locks_; }
    // Decimal places shown.
    int displayPrecision() const { return settings_.precision; }
    int maxInfluences() const { return settings_.maxInfluences; }
    // The weight of the leading cell when it was last picked or typed into: where a drag starts.
    double currentCellValue() const { return currentCellValue_; }
    bool isHighlighting() const { return isHighlighting_; }
    // Whether the skin paint tool is smoothing on the editor's behalf; it changes the selection.
    bool getSkinPaintSmoothMode() const { return skinPaintSmoothMode_; }

    // Empties the table, its locks and its snapshots: another scene has come.
    void clearWeightList();

    // The next call of takeIgnoredSelectionChange() answers true, once.
    void ignoreNextSelectionChange() { ignoreNextSelectionChange_ = true; }
    bool takeIgnoredSelectionChange();

    // Selects the rows of the mesh vertices that are selected in Maya, and no others. Picked faces
    // and edges, and vertices that are not loaded, select nothing.
    void mirrorMayaSelection();

    // QAbstractTableModel. Cells give their text for the edit role too.
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

public slots:
    // Replaces the table by the weights of what is selected in Maya. Shapes without a skin cluster,
    // and those of which faces or edges are selected, add nothing. While auto update is on, an
    // empty selection keeps the table.
    void refreshSkinClusterData();

    // Whether the table follows each change of Maya's selection.
    void setAutoUpdate(bool on);

    // Rows with more influences than `maximum` are marked from now on. No weight changes.
    void setMaxValue(int maximum);

    // Hides the columns of joints without weight, or shows all again.
    void toggleFilter(bool on);
    // Hides, shows and sizes the columns as the filter and the weights now require.
    void setUpColumn();

    // While highlighting is on, what is selected in the table is selected in Maya. Switching it on
    // selects at once.
    void toggleHilight(bool on);
    // What a click on a cell, a selection of cells, a click on a column's or a row's header
    // highlights. The arguments are not used; the view's selection decides.
    void cellSelected(const QModelIndex &index);
    void multiCellSelected();
    void columnHeaderSelected(int column);
    void rowHeaderSelected(int row);

    // Reads the locks that are stored on the loaded skin clusters, and gives the attributes that
    // store them to those that lack them.
    void checkLockAttr();

private:
    QVariant cellData(const weightRow &row, const cellIndex &cell, int role) const;
    QVariant rowHeaderData(int row, int role) const;
    QVariant columnHeaderData(int column, int role) const;

    void appendShapeBlock(int shape, wholeListRounding &rounding);
    void roundLoadedRows(wholeListRounding &rounding);

    void applyColumnFilter();
    QItemSelection viewSelection() const;
    void selectVerticesInMaya(const QVector<int> &rows);
    void renewCurrentCellValue();

    weightList weights_;
    weightList weightsBeforeLoad_;
    lockState locks_;
    displaySettings settings_;
    int previousMaxInfluences_;

    QTableView *view_ = nullptr;
    QList<int> emptyColumns_; // known while the filter is on
    bool isFiltering_ = false;
    bool isHighlighting_ = false;
    double currentCellValue_ = 0.0;

    // Guards against reacting to ourselves.
    bool ignoreNextSelectionChange_ = false;
    bool isMirroring_ = false;
    bool skinPaintSmoothMode_ = false;

    MCallbackId selectionChangedCallback_;
    MCallbackId sceneOpenedCallback_;
};
