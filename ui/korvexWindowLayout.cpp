// SPDX-License-Identifier: Apache-2.0
// What the window is put together from. Sizes are pixels.
#include "ui/korvexWindow.h"

#include <QAction>
#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>
#include <QFrame>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/weightTableModel.h"
#include "ui/qtCompatibility.h"
#include "ui/weightColumnHeaderView.h"
#include "ui/weightTableView.h"

namespace
{

const int kRowHeight = 21;
const int kColumnWidth = 40;
const int kNarrowestColumn = 20;
const int kButtonWidth = 140;
const int kCellMargins = 11; // both sides together, as item views leave them
const int kSmallestFont = 7;
const int kMargin = 15;
const int kSpacing = 5;
const char kCheckedButtonStyle[] =
    "QPushButton:checked { background-color: lightGray; color: black}";

// The font, made smaller until a weight with three decimals fits into a column.
QFont weightFont(QFont font)
{
    int height = QFontInfo(font).pixelSize();
    const QString widest = QLatin1String("0.000");
    while (height > kSmallestFont &&
           QFontMetrics(font).boundingRect(widest).width() > kColumnWidth - kCellMargins)
        font.setPixelSize(--height);
    return font;
}

enum buttonKind { kPushButton, kCheckButton };

struct windowButton {
    const char *text;
    const char *objectName;
    buttonKind kind;
    const char *signal;
    const char *slot; // of the window
};

QPushButton *createButton(const windowButton &description, QObject *window)
{
    QPushButton *button = new QPushButton(QLatin1String(description.text));
    button->setObjectName(QLatin1String(description.objectName));
    button->setFixedWidth(kButtonWidth);
    if (description.kind == kCheckButton) {
        button->setCheckable(true);
        button->setStyleSheet(QLatin1String(kCheckedButtonStyle));
    }
    QObject::connect(button, description.signal, window, description.slot);
    return button;
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
    tableView_->setFont(weightFont(tableView_->font()));
    tableView_->setWordWrap(false);
    tableView_->verticalHeader()->setMinimumSectionSize(kRowHeight);
    tableView_->verticalHeader()->setDefaultSectionSize(kRowHeight);
}

void korvexWindow::buildColumnHeader()
{
    columnHeader_ = new weightColumnHeaderView(Qt::Horizontal);
    tableView_->setHorizontalHeader(columnHeader_);
    columnHeader_->setMinimumSectionSize(kNarrowestColumn);
    columnHeader_->setDefaultSectionSize(kColumnWidth);
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
    connect(tableView_->selectionModel(),
            SIGNAL(selectionChanged(const QItemSelection &, const QItemSelection &)), this,
            SLOT(tableSelectionChanged(const QItemSelection &, const QItemSelection &)));
    // In this order: columns first, then the locks that are stored for what was loaded.
    connect(model_, SIGNAL(modelReset()), model_, SLOT(setUpColumn()));
    connect(model_, SIGNAL(modelReset()), model_, SLOT(checkLockAttr()));
    connect(tableView_, SIGNAL(clicked(const QModelIndex &)), this,
            SLOT(tableCellSelected(const QModelIndex &)));
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

QLayout *korvexWindow::buildButtons()
{
    const windowButton loading[] = {
        {"Load Component", "LoadComponent", kPushButton, SIGNAL(clicked()), SLOT(loadWeightData())},
        {"Filter", "Filter", kCheckButton, SIGNAL(toggled(bool)), SLOT(toggleFilter(bool))},
        {"Highlight", "Highlight", kCheckButton, SIGNAL(toggled(bool)), SLOT(toggleHilight(bool))},
    };
    QHBoxLayout *row = new QHBoxLayout;
    for (const windowButton &button : loading)
        row->addWidget(createButton(button, this));
    row->addStretch();
    return row;
}

void korvexWindow::assembleCentralWidget(QLayout *buttons)
{
    QFrame *frame = new QFrame(this);
    QVBoxLayout *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kSpacing);
    layout->addLayout(buttons);
    layout->addWidget(tableView_);
    setCentralWidget(frame);
}
