// SPDX-License-Identifier: Apache-2.0
// Calls of QHeaderView that changed their names from Qt 4 to Qt 5. Everything else of ours compiles
// on Qt 4.8, 5 and 6 as it stands.
#pragma once

#include <QtGlobal>

#include <QHeaderView>

inline void setSectionsClickable(QHeaderView &header, bool clickable)
{
#if QT_VERSION >= 0x050000
    header.setSectionsClickable(clickable);
#else
    header.setClickable(clickable);
#endif
}

inline void setSectionsMovable(QHeaderView &header, bool movable)
{
#if QT_VERSION >= 0x050000
    header.setSectionsMovable(movable);
#else
    header.setMovable(movable);
#endif
}

inline void setSectionResizeMode(QHeaderView &header, QHeaderView::ResizeMode mode)
{
#if QT_VERSION >= 0x050000
    header.setSectionResizeMode(mode);
#else
    header.setResizeMode(mode);
#endif
}
