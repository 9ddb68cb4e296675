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
#include "model/editHandOver.h"
#include "model/editTrail.h"
#include "model/emptyColumns.h"
#include "model/lockState.h"
#include "model/weightList.h"
#include "model/writtenVertices.h"

#include <maya/MMessage.h>
#include <maya/MSelectionList.h>

#include <functional>

class QTableView;
class wholeListRounding;
struct typedValue;

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
    // What the operation that runs korvexCmd has left for it.
    const editHandOver &handOver() const { return handOver_; }
    // Where korvexCmd tells what becomes of its edits.
    editTrail &trail() { return trail_; }
    // Decimal places shown.
    int displayPrecision() const { return settings_.precision; }
    int maxInfluences() const { return settings_.maxInfluences; }
    // The weight of the leading cell when it was last picked or typed into: where a drag starts.
    double currentCellValue() const { return currentCellValue_; }
    bool isHighlighting() const { return isHighlighting_; }
    // Whether the cell shows a number: it is not a shape row's, and its joint can move the vertex.
    bool showsWeight(const QModelIndex &index) const;
    // Whether the skin paint tool is smoothing on the editor's behalf; it changes the selection.
    bool getSkinPaintSmoothMode() const { return skinPaintSmoothMode_; }
    void setSkinPaintSmoothMode(bool on) { skinPaintSmoothMode_ = on; }
    // The same for the skin cluster's own smoothing.
    bool getSmoothSkinWeightsMode() const { return smoothSkinWeightsMode_; }
    void setSmoothSkinWeightsMode(bool on) { smoothSkinWeightsMode_ = on; }

    // Locks again what newUnlockAll() has unlocked.
    Q_INVOKABLE void restoreLocks();

    // Empties the table, its locks and its snapshots: another scene has come.
    void clearWeightList();

    // The next call of takeIgnoredSelectionChange() answers true, once.
    void ignoreNextSelectionChange() { ignoreNextSelectionChange_ = true; }
    bool takeIgnoredSelectionChange();

    // Replaces the table by the weights of what is selected in Maya. Shapes without a skin cluster,
    // and those of which faces or edges are selected, add nothing. While auto update is on, an
    // empty selection keeps the table. It ends empty, with an error, where memory does not suffice;
    // false then.
    bool loadSelection();

    // Selects the rows of the mesh vertices that are selected in Maya, and no others. Picked faces
    // and edges, and vertices that are not loaded, select nothing.
    void mirrorMayaSelection();

    // Reads what a command has written, or written back, and rounds it by the pass over the whole
    // list. The table ends as if all of it was read again.
    void refreshWritten(const QVector<writtenVertices> &written);

    // QAbstractTableModel. Typed text (typedValue.h) goes to each selected cell that shows a
    // weight, through Maya's command engine. Cells give their text for the edit role too.
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

public slots:
    // loadSelection(), with a warning where something is selected and nothing of it can be loaded.
    void refreshSkinClusterData();

    // Whether the table follows each change of Maya's selection.
    void setAutoUpdate(bool on);

    // Rows with more influences than `maximum` are marked from now on. No weight changes.
    void setMaxValue(int maximum);
    // Takes the smallest weights of the vertices that have more, until none has: of the whole rows
    // that are selected, without any of all. Rows that a lock protects are refused.
    void applyMaxInfluence();

    // The value slider at `value`, over the selected cells or, where whole columns are selected,
    // over the last of these. Absolute: the weight itself, else how far it was moved since the drag
    // began. Locked and hidden cells stay; of each row the rightmost selected cell moves.
    void dragSlider(double value, bool absolute);
    void dragSliderColumn(double value, bool absolute);

    // Gives the joint of the one selected column that weight on each vertex of a shape that is not
    // locked.
    void replaceValue(double value);

    // Evens out jumps of weight by the skin cluster's own edit: on the vertices of all rows with a
    // selected cell, which must share a skin cluster. With nothing selected it runs once for each
    // skin cluster; vertices that are selected in Maya then limit it to themselves. `value` is the
    // tolerance, 0 to 1: vertices that differ less from their neighbours stay; `numIter` the number
    // of rounds.
    void applySmoothSkinWeights(double value, int numIter);
    // Draws one joint's weights towards those of the neighbours, with Maya's paint tool: on the
    // selected cells of one column that are not locked. `value` is the opacity, 0 to 1.
    void applySkinPaintSmooth(double value);

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
    // A drag of the selection starts from here: the weight of its leading cell is read anew.
    void renewCurrentCellValue();

    // Reads the locks that are stored on the loaded skin clusters, and gives the attributes that
    // store them to those that lack them.
    void checkLockAttr();

    // Lock and unlock the whole columns, whole rows and other cells that are selected; unlocking a
    // cell of a locked row or column leaves the rest of that locked cell by cell. At a selected
    // shape row the operation ends. Stored with the scene at once, past Maya's undo queue, but for
    // the joints' own locks.
    void newLockSelected();
    void newUnlockSelected();
    // Unlocks everything and remembers it for restoreLocks().
    void newUnlockAll();
    // Each selected cell by itself, also those of selected rows and columns.
    void lockCell();
    void unlockCell();

    // The same through attributes of Maya's alone; connected to nothing (legacyLocks.cpp).
    void lockSelected();
    void unlockSelected();
    void unlockAll();

    // Shows the weights, read by cacheUnroundedWeights(), at that many decimal places. Refused
    // while anything is locked.
    void setPrecision(int places);
    // Writes the weights into the skin clusters as they are shown, by korvexCmd.
    void applyPrecision();

    // Snapshots (snapshots.cpp): copies of the table's rows that share memory with it.
    void keepPreviousWeights();
    void saveUndoCopy();
    // Shows the undo copy, or what was kept as the previous weights. What was shown becomes the
    // previous weights, so that the second one takes back the first, and itself.
    void restoreUndoCopy();
    void restorePreviousWeights();
    // Reads the weights at full precision, for setPrecision().
    void cacheUnroundedWeights();
    // Changes places with the table before the last load; called again, back.
    void undoLoad();
    // Write the weights before applyPrecision(), and those that it wrote, past Maya's undo queue.
    void undoApplyPrecision();
    void redoApplyPrecision();
    void undoPrecision();
    void undoMaxInfluence();
    // Have Maya undo, or redo, the last action that wrote weights, and keep what the table showed
    // before. Refused if Maya would undo something else: then something has been done since.
    void undoLastAction();
    void redoLastAction();

signals:
    // After each step of a drag: the leading cell's weight now, before the step, and where the drag
    // began.
    void topRightCellDataChanged(double newValue, double lastValue, double origValue);

private:
    friend class lockEdit;

    // Has korvexCmd carry out what is handed over: an action, or part of the one that is open.
    // Runs the command that carries out what was handed over. Rows that the operation itself reads
    // again afterwards are not read when the command has written.
    void runEdit(const char *flag, const QVector<int> &rowsReadAfterwards = QVector<int>());

    QVariant cellData(const weightRow &row, const cellIndex &cell, int role) const;
    QVariant rowHeaderData(int row, int role) const;
    QVariant columnHeaderData(int column, int role) const;

    // Replaces the table by what is selected.
    void readSelection(const MSelectionList &selection, wholeListRounding &rounding);
    void appendShapeBlock(int shape, wholeListRounding &rounding);
    void roundLoadedRows(wholeListRounding &rounding);

    void fillPending(const typedValue &typed, const QVector<cellIndex> &selected);
    QVector<cellIndex> selectedCells(const cellIndex &edited) const;
    // The cell that leads a drag over what is selected; row -1 if there is nothing to drag.
    cellIndex leadingCell() const;
    QSet<int> hiddenColumns() const;
    QVector<int> rowsChosenForLimit() const;
    QVector<int> allVertexRows() const;

    // Read rows again, each rounded as one whose joint of that column was edited (-1: of none).
    // Rows of shapes and rows that cannot be read stay as they are.
    void refreshEditedRows(const QVector<cellIndex> &edited);
    void refreshRowsEditedAt(const QVector<int> &rows, int column);
    void refreshOneByOne(QVector<int> rows, const std::function<int(int row)> &editedColumn);
    bool refreshListRows(const QVector<int> &rows);
    void refreshAllRows();
    void storeRow(int row, const weightRow &weights, double sum);
    void announceRows(const QVector<int> &rows);

    // Return the rows that may have changed.
    QVector<int> smoothWholeMeshes(const QString &value, int iterations);
    QVector<int> smoothSelectedRows(const QString &value, int iterations);

    // Finds the empty columns anew, then shows and hides; the second alone where rows changed one
    // by one.
    void applyColumnFilter();
    void showFilteredColumns();
    weightRows readUnroundedRows() const;
    void restoreRows(weightRows rows, const char *failure);
    void forgetSnapshots();
    void announceAllRows();
    void writeRows(const weightRows &rows);

    QItemSelection viewSelection() const;
    void selectVerticesInMaya(const QVector<int> &rows);

    weightList weights_;
    weightList weightsBeforeLoad_;
    lockState locks_;
    lockState previousLocks_; // what newUnlockAll() found
    editHandOver handOver_;
    editTrail trail_;
    displaySettings settings_;
    int previousMaxInfluences_;
    int previousPrecision_; // before the last setPrecision()

    // Snapshots, of the table's shape or empty.
    weightRows previousRows_;  // before the latest operation
    weightRows undoRows_;      // before a change of the display alone
    weightRows unroundedRows_; // as the skin clusters held them

    QTableView *view_ = nullptr;
    emptyColumns emptyColumns_; // known while the filter is on
    bool isFiltering_ = false;
    bool isHighlighting_ = false;
    double currentCellValue_ = 0.0;

    // Guards against reacting to ourselves.
    QVector<int> rowsReadAfterwards_; // vertex rows, by the operation whose command is running
    bool ignoreNextSelectionChange_ = false;
    bool isMirroring_ = false;
    bool skinPaintSmoothMode_ = false;
    bool smoothSkinWeightsMode_ = false;

    MCallbackId selectionChangedCallback_;
    MCallbackId sceneOpenedCallback_;
};
