// SPDX-License-Identifier: Apache-2.0
// The editor window: the table of weights and the controls around it.
//
// The window owns the model and the view, checks what the user enters, and hands it to the model's
// slots, which do the work. It is built once, shown and hidden from then on, and deleted with the
// plug-in or with Maya's main window. Each row of controls has a source of its own; what one
// refuses it says in Maya, and then stands as before.
#pragma once

#include <QItemSelection>
#include <QMainWindow>
#include <QModelIndex>

#include <memory>

#include "ui/floodRow.h"
#include "ui/keyboardUndo.h"
#include "ui/weightScale.h"

class QComboBox;
class QGroupBox;
class QKeyEvent;
class QLayout;
class QLineEdit;
class QMenu;
class QPushButton;
class QSlider;
class operationCommands;
class weightColumnHeaderView;
class weightTableModel;
class weightTableView;

class korvexWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit korvexWindow(QWidget *parent);
    ~korvexWindow() override;

    // The window keeps it.
    weightTableModel *model() const { return model_; }

    // QObject. Ctrl+Z and Ctrl+Y, and keys typed over the table's selected cells.
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    // maxInfluencesRow.cpp
    void setMaxValue();
    void applyMaxInfluence();

    // precisionRow.cpp
    void setPrecisionEdit();
    void applyPrecision();

    // floodPanel.cpp: which rows are needed, what they say, and the operations.
    void floodOperationBoxChanged(int operation);
    void requiredWeightDifferenceEditChanged();
    void requiredWeightDifferenceSliderChanged();
    void smoothingIterationsEditChanged();
    void smoothingIterationsSliderChanged();
    void opacityEditChanged();
    void opacitySliderChanged();
    void floodEditChanged();
    void floodSliderChanged();
    void floodSliderStepped();
    void applyFlood();
    void applySmoothSkinWeights();
    void applySkinPaintSmooth();
    void replaceValue();

    // tableButtons.cpp
    void loadWeightData();
    void toggleFilter(bool on);
    void toggleHilight(bool on);
    void lockSelected();
    void unlockSelected();
    void unlockAll();

    // valueRow.cpp
    void setAbsoluteMode(bool isAbsolute);
    void sliderChanged(int step);
    void sliderReleased();
    void valueEditChanged();
    // The model has dragged: the weights of the leading cell now, before, and at the drag's start.
    void updateSliderValue(double newValue, double lastValue, double origValue);
    // The row begins anew with what is selected, for which an empty selection is fine.
    void alignValueRow();

    // The user has confirmed an editor of the table.
    void tableEdited();

    // What follows a click on a cell, a change of the selected cells, a click on a header.
    void tableCellSelected(const QModelIndex &index);
    void tableSelectionChanged(const QItemSelection &selected, const QItemSelection &deselected);
    void columnHeaderClicked(int column);
    void rowHeaderClicked(int row);
    // At a point of the table's viewport.
    void showContextMenu(const QPoint &point);

private:
    // In the order of their combo box, and of the panel's lines.
    enum floodOperation {
        kSmoothSkinWeight,
        kSmoothPerInfluence,
        kReplacePerInfluence,
        kFloodOperationCount
    };
    enum floodSetting { kWeightDifference, kIterations, kOpacity, kFloodValue, kFloodRowCount };

    struct controlRows {
        QLayout *maxInfluences;
        QLayout *buttons;
        QLayout *precision;
        QLayout *value;
        QLayout *flood;
    };

    // korvexWindowLayout.cpp, and each row's own source.
    void buildTable();
    void buildColumnHeader();
    void connectTable();
    void connectModel();
    void buildOptionsMenu();
    QLayout *buildMaxInfluencesRow();
    QLayout *buildTableButtons();
    QLayout *buildPrecisionRow();
    QLayout *buildValueRow();
    QLayout *buildFloodPanel();
    void connectFloodPanel();
    void assembleCentralWidget(const controlRows &rows);

    // Every control that has acted comes by here, afterwards.
    void acted(QWidget *control);
    // The same for one that was to write weights, if it has. Whether it has.
    bool actedIfWritten(QWidget *control);

    // undoSteps.cpp
    void watchKeys();
    void buildUndoTable();
    void addFloodRowsToUndo();
    void addWeightsToUndo();
    void showMaximum(int maximum);
    void showPrecision(int digits);
    void checkMode(bool isAbsolute);

    bool isTypedOverCells(const QObject *watched, const QKeyEvent &key) const;
    bool takePrecision(int digits);
    bool setModelPrecision(int digits);

    void enableFloodRows(int operation);
    void confirmFloodEdit(floodRow &row);
    void releaseFloodSlider(floodRow &row);
    typedNumber floodValue() const;

    void fitValueSlider();
    void fitValueSliderRange();
    void showInValueRow(int step, const QString &text);
    void resetValueRow();
    bool isWeightSelected() const;
    bool canDrag();
    void drag(double value, QWidget *control);

    weightTableView *tableView_ = nullptr;
    weightTableModel *model_ = nullptr;
    weightColumnHeaderView *columnHeader_ = nullptr;
    QMenu *contextMenu_ = nullptr; // made when it is first asked for

    // Beside each control stands what it was before it last acted.
    keyboardUndo keyboardUndo_;
    int newestEdit_ = 0; // of weights, when a control last asked

    QLineEdit *maxInfluenceEdit_ = nullptr;
    QPushButton *applyInfluenceButton_ = nullptr;
    int lastMaxInfluence_ = 0;
    int newMaxInfluence_ = 0;

    QLineEdit *precisionEdit_ = nullptr;
    QPushButton *roundButton_ = nullptr;
    int precisionDigits_ = 3; // also the exponent of the value slider's scale
    int lastPrecisionDigits_ = 3;
    int newPrecisionDigits_ = 3;

    floodRow floodRows_[kFloodRowCount];
    QComboBox *operationBox_ = nullptr;
    QPushButton *floodApplyButton_ = nullptr;

    QPushButton *loadButton_ = nullptr;
    QPushButton *filterButton_ = nullptr;
    QPushButton *highlightButton_ = nullptr;
    bool otherFilterState_ = false;
    bool otherHighlightState_ = false;
    QPushButton *lockButton_ = nullptr;
    QPushButton *unlockButton_ = nullptr;
    QPushButton *unlockAllButton_ = nullptr;

    QGroupBox *modeGroup_ = nullptr;
    QLineEdit *valueEdit_ = nullptr;
    QSlider *valueSlider_ = nullptr;
    bool isAbsolute_ = false;
    bool wasAbsolute_ = false;

    std::unique_ptr<operationCommands> commands_; // nothing here executes them
};
