// SPDX-License-Identifier: Apache-2.0
// Every text that the editor shows in Maya's Script Editor, once: for the code and for its tests.
#pragma once

const char kNothingLoaded[] = "There is no weight list displayed in the window.";
const char kNoCellSelected[] = "There is no cell selected.";

// Rounding.
const char kRowWithoutColumns[] = "This row doesn't have more than 2 columns.";
const char kRowWithoutWeight[] = "There is something wrong accessing weight data.";

// The command without a place to act on.
const char kNoUserInterface[] = "korvexCmd needs Maya's user interface.";
const char kWindowNeverOpened[] =
    "The Korvex window has not been opened yet. Run korvexCmd without flags first.";
const char kFlagWithoutEdit[] = "korvexCmd: ^1s carries no edit yet."; // ^1s: the flag
