// SPDX-License-Identifier: Apache-2.0
// The row that says how many influences a vertex may have, and removes those beyond.
#include "ui/korvexWindow.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "model/messages.h"
#include "model/weightTableModel.h"
#include "ui/controlParts.h"

#include <maya/MGlobal.h>

namespace
{

const int kEditWidth = 30;
const int kDistance = 18;

} // namespace

QLayout *korvexWindow::buildMaxInfluencesRow()
{
    maxInfluenceEdit_ =
        createEdit("", "maxInfluenceEdit",
                   "Rows with more influences than this are marked. Press Enter to set it.");
    maxInfluenceEdit_->setMaximumWidth(kEditWidth);
    maxInfluenceEdit_->setPlaceholderText(QString::number(model_->maxInfluences()));
    applyInfluenceButton_ =
        createButton("Apply", "ApplyInfluence",
                     "Remove the smallest weights of the selected rows, or of all, until no vertex "
                     "has more influences than the maximum.");
    const controlConnection connections[] = {
        {maxInfluenceEdit_, SIGNAL(returnPressed()), SLOT(setMaxValue())},
        {applyInfluenceButton_, SIGNAL(clicked()), SLOT(applyMaxInfluence())},
    };
    connectAll(connections, this);
    return createEditRow("Max influences:", maxInfluenceEdit_, kDistance, applyInfluenceButton_);
}

void korvexWindow::setMaxValue()
{
    bool isNumber = false;
    const int maximum = maxInfluenceEdit_->text().toInt(&isNumber, 10);
    if (!isNumber || maximum < 1) {
        MGlobal::displayError(kInvalidMaximum);
        return;
    }
    lastMaxInfluence_ = model_->maxInfluences();
    newMaxInfluence_ = maximum;
    model_->setMaxValue(maximum);
    acted(maxInfluenceEdit_);
}

void korvexWindow::applyMaxInfluence()
{
    model_->applyMaxInfluence();
    actedIfWritten(applyInfluenceButton_);
}
