// SPDX-License-Identifier: Apache-2.0
// Which tool the user holds, and what the tool for painting skin weights is set to.
//
// A tool is known by the name of its context. The host has no pointer to paint or drag with, so a
// tool that is entered does nothing but be the current one; floods work on the settings kept here.
// Changes are recorded for undo, as those of Maya's setToolTo and artAttrSkinPaintCtx are.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "scene/events.h"
#include "scene/node.h"
#include "scene/undoQueue.h"
#include "skin/paint.h"

namespace host
{

constexpr char kSelectContext[] = "selectSuperContext"; // current when Maya starts
constexpr char kSkinPaintContext[] = "artAttrSkinContext";

// The settings of the tool for painting skin weights.
struct SkinPaintTool {
    skin::PaintSettings brush;
    int mode = 1;                  // 0 marquee select, 1 paint, 2 paint select
    std::weak_ptr<Node> influence; // the current one; null until one is chosen
    // Settings of a brush on the screen, by the flag's long name: kept, without effect.
    std::map<std::string, std::string> display;
};

class ToolState
{
public:
    // Neither is owned; both must outlive the state.
    ToolState(UndoQueue &undo, Events &events) : undo_(undo), events_(events) {}

    // The name of the context that `name` means, empty if there is none. Scripts call the paint
    // tool's context by the name of its command too ("artAttrSkinPaintCtx"); it comes into being
    // when the tool is first entered.
    std::string contextNamed(std::string_view name) const;

    const std::string &current() const { return state_.current; }
    // Raises "ToolChanged" and "PostToolChanged" if another tool was current; so does undoing it.
    // REQUIRES: `context` is kSkinPaintContext or the result of contextNamed.
    void enter(std::string_view context);

    const SkinPaintTool &skinPaint() const { return state_.skinPaint; }
    void setSkinPaint(SkinPaintTool tool);

private:
    struct State {
        std::string current = kSelectContext;
        bool hasSkinPaint = false;
        SkinPaintTool skinPaint;
    };
    void change(const State &after);
    void restore(const State &state);

    UndoQueue &undo_;
    Events &events_;
    State state_;
};

} // namespace host
