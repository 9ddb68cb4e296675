// SPDX-License-Identifier: Apache-2.0
// What the window is put together from. Sizes are pixels.
#include "ui/korvexWindow.h"

#include <QAction>
#include <QFontMetrics>
#include <QFrame>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>

#include "model/weightTableModel.h"
#include "ui/controlParts.h"
#include "ui/qtCompatibility.h"
#include "ui/weightColumnHeaderView.h"
#include "ui/weightScale.h"
#include "ui/weightTableView.h"

namespace
{

const int kRowHeight = 21;
const int kNarrowestColumn = 20;
const int kCellMargins = 11; // both sides together, as item views leave them
const int kMargin = 15;
const int kSpacing = 5;

// Whether a weight with three decimals fits into a column.
bool fitsColumn(const QFont &font)
{
    const int room = jointColumnWidth(3) - kCellMargins;
    return QFontMetrics(font).boundingRect(QLatin1String("0.000")).width() <= room;
}

} // namespace

void korvexWindow::buildTable()
{
    tableView_ = new weightTableView(this);
    tableView_->setObjectName(QLatin1String("weightTable"));
    tableView_->installEventFilter(this);
    model_ = new weightTableModel(this);
    tableView_->setModel(model_);
    model_->setView(tableView_);
    tableView_->setFont(fittedFont(tableView_->font(), fitsColumn));
    tableView_->setWordWrap(false);
    tableView_->verticalHeader()->setMinimumSectionSize(kRowHeight);
    tableView_->verticalHeader()->setDefaultSectionSize(kRowHeight);
}

void korvexWindow::buildColumnHeader()
{
    columnHeader_ = new weightColumnHeaderView(Qt::Horizontal);
    tableView_->setHorizontalHeader(columnHeader_);
    columnHeader_->setMinimumSectionSize(kNarrowestColumn);
    columnHeader_->setDefaultSectionSize(jointColumnWidth(precisionDigits_));
    setSectionsClickable(*columnHeader_, true);
    columnHeader_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    columnHeader_->setHighlightSections(true);
    // A protected slot: only the meta-object can call it. Makes room for the new header.
    QMetaObject::invokeMethod(tableView_, "updateGeometries");
}

void korvexWindow::connectTable()
{
    connect(columnHeader_, SIGNAL(sectionClicked(int)), this, SLOT(columnHeaderClicked(int)));
    connect(tableView_->verticalHeader(), SIGNAL(sectionClicked(int)), this,
            SLOT(rowHeaderClicked(int)));
    tableView_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(tableView_, SIGNAL(customContextMenuRequested(const QPoint &)), this,
            SLOT(showContextMenu(const QPoint &)));
    connect(tableView_->selectionModel(),
            SIGNAL(selectionChanged(const QItemSelection &, const QItemSelection &)), this,
            SLOT(tableSelectionChanged(const QItemSelection &, const QItemSelection &)));
    // In this order: columns first, then the locks that are stored for what was loaded.
    connect(model_, SIGNAL(modelReset()), model_, SLOT(setUpColumn()));
    connect(model_, SIGNAL(modelReset()), model_, SLOT(checkLockAttr()));
}

// After the rows of controls, which then show what the table holds.
void korvexWindow::connectModel()
{
    connect(tableView_, SIGNAL(clicked(const QModelIndex &)), this,
            SLOT(tableCellSelected(const QModelIndex &)));
    connect(model_, SIGNAL(topRightCellDataChanged(double, double, double)), this,
            SLOT(updateSliderValue(double, double, double)));
    connect(model_, SIGNAL(modelReset()), this, SLOT(alignValueRow()));
    // After the view, which gives the text to the model.
    connect(tableView_->itemDelegate(), SIGNAL(commitData(QWidget *)), this, SLOT(tableEdited()));
}

void korvexWindow::buildOptionsMenu()
{
    QMenu *options = menuBar()->addMenu(QLatin1String("Options"));
    QAction *autoUpdateAction = options->addAction(QLatin1String("Auto Update"));
    autoUpdateAction->setCheckable(true);
    connect(autoUpdateAction, SIGNAL(triggered(bool)), model_, SLOT(setAutoUpdate(bool)));
    // Reserved: presets do nothing.
    options->addAction(QLatin1String("Save Preset"));
    options->addAction(QLatin1String("Load Preset"));
}

// Rows of controls from top to bottom, the table below them.
void korvexWindow::assembleCentralWidget(const controlRows &rows)
{
    QFrame *frame = new QFrame(this);
    QVBoxLayout *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kSpacing);
    layout->addLayout(rows.maxInfluences);
    layout->addWidget(createSeparator());
    layout->addLayout(rows.precision);
    layout->addWidget(createSeparator());
    layout->addLayout(rows.flood);
    layout->addWidget(createSeparator());
    layout->addLayout(rows.buttons);
    layout->addLayout(rows.value);
    layout->addWidget(tableView_);
    setCentralWidget(frame);
}
