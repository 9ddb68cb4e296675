// SPDX-License-Identifier: Apache-2.0
#include "model/weightTableModel.h"

#include "plugin/processState.h"
#include "plugin/sceneCallbacks.h"

#include <maya/MEventMessage.h>
#include <maya/MString.h>

namespace
{

const int kDefaultPrecision = 3;
const int kDefaultMaxInfluences = 4;

} // namespace

weightTableModel::weightTableModel(QObject *parent)
    : QAbstractTableModel(parent), previousMaxInfluences_(kDefaultMaxInfluences),
      previousPrecision_(kDefaultPrecision)
{
    settings_.precision = kDefaultPrecision;
    settings_.maxInfluences = kDefaultMaxInfluences;
    selectionChangedCallback_ =
        MEventMessage::addEventCallback("SelectionChanged", onSelectionChanged, this);
    sceneOpenedCallback_ = MEventMessage::addEventCallback("SceneOpened", onSceneOpened, this);
}

weightTableModel::~weightTableModel()
{
    MMessage::removeCallback(selectionChangedCallback_);
    MMessage::removeCallback(sceneOpenedCallback_);
    // The model goes with its window. When Maya quits it deletes the window without unloading the
    // plug-in, and nobody else would tell.
    if (activeModel == this) {
        activeModel = nullptr;
        activeWindow = nullptr;
    }
}

void weightTableModel::setAutoUpdate(bool on)
{
    autoUpdate = on;
}

void weightTableModel::clearWeightList()
{
    beginResetModel();
    weights_ = weightList();
    weightsBeforeLoad_ = weightList();
    locks_.clear();
    previousLocks_.clear();
    forgetSnapshots();
    endResetModel();
    // The reset takes selection and current cell from the views; this tells who waits for the
    // table's layout.
    emit layoutAboutToBeChanged();
    emit layoutChanged();
}

bool weightTableModel::takeIgnoredSelectionChange()
{
    const bool ignored = ignoreNextSelectionChange_;
    ignoreNextSelectionChange_ = false;
    return ignored;
}
