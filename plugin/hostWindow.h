// SPDX-License-Identifier: Apache-2.0
// Maya's main window, in a header without any of Maya's.
#pragma once

class QWidget;

// The parent for windows of ours. Maya owns it; null where Maya has no window.
QWidget *hostWindow();
