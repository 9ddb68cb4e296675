// SPDX-License-Identifier: Apache-2.0
// The row that says how many decimal places are shown, and rounds the skin clusters to them.
#include "ui/korvexWindow.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "model/messages.h"
#include "model/weightTableModel.h"
#include "ui/controlParts.h"
#include "ui/weightColumnHeaderView.h"
#include "ui/weightScale.h"
#include "ui/weightTableView.h"

#include <maya/MGlobal.h>

namespace
{

const int kEditWidth = 50;
const int kDistance = 50;

} // namespace

QLayout *korvexWindow::buildPrecisionRow()
{
    precisionEdit_ = createEdit("0.001", "precisionEdit",
                                "The smallest weight to be shown, as 0.001 for three decimal "
                                "places. Press Enter to set it.");
    precisionEdit_->setFixedWidth(kEditWidth);
    roundButton_ = createButton("Round", "RoundPrecision",
                                "Write the weights into the skin clusters as they are shown.");
    const controlConnection connections[] = {
        {precisionEdit_, SIGNAL(returnPressed()), SLOT(setPrecisionEdit())},
        {roundButton_, SIGNAL(clicked()), SLOT(applyPrecision())},
    };
    connectAll(connections, this);
    return createEditRow("Enter number of decimal places:", precisionEdit_, kDistance,
                         roundButton_);
}

void korvexWindow::setPrecisionEdit()
{
    const int digits = precisionDigits(precisionEdit_->text());
    if (digits == 0) {
        MGlobal::displayError(kMalformedPrecision);
        return;
    }
    const int before = model_->displayPrecision();
    if (!takePrecision(digits))
        return;
    lastPrecisionDigits_ = before;
    newPrecisionDigits_ = digits;
    acted(precisionEdit_);
}

// False if the model has refused, and said why.
bool korvexWindow::takePrecision(int digits)
{
    if (!setModelPrecision(digits))
        return false;
    precisionDigits_ = digits;
    columnHeader_->setDefaultSectionSize(jointColumnWidth(digits));
    model_->setUpColumn(); // gives each column that width
    fitValueSlider();
    return true;
}

// The same for the model alone. A table that locks keep from being rounded anew keeps its snapshots
// too: they belong to the last change that was made.
bool korvexWindow::setModelPrecision(int digits)
{
    const bool isOpen = model_->locks().isEmpty();
    if (isOpen) {
        model_->saveUndoCopy();
        model_->cacheUnroundedWeights();
    }
    model_->setPrecision(digits);
    return isOpen && model_->rowCount() > 0 && model_->displayPrecision() == digits;
}

void korvexWindow::applyPrecision()
{
    model_->applyPrecision();
    actedIfWritten(roundButton_);
}
