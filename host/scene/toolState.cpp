// SPDX-License-Identifier: Apache-2.0
#include "scene/toolState.h"

#include <algorithm>
#include <iterator>

namespace host
{

namespace
{

// The contexts that Maya starts with and scripts go back to.
constexpr std::string_view kStartContexts[] = {kSelectContext, "moveSuperContext",
                                               "RotateSuperContext", "scaleSuperContext"};
constexpr std::string_view kSkinPaintCommand = "artAttrSkinPaintCtx";

} // namespace

std::string ToolState::contextNamed(std::string_view name) const
{
    if (name == kSkinPaintContext || name == kSkinPaintCommand)
        return state_.hasSkinPaint ? kSkinPaintContext : "";
    const auto found = std::find(std::begin(kStartContexts), std::end(kStartContexts), name);
    return found == std::end(kStartContexts) ? std::string() : std::string(*found);
}

void ToolState::enter(std::string_view context)
{
    State after = state_;
    after.current = context;
    after.hasSkinPaint = after.hasSkinPaint || context == kSkinPaintContext;
    if (after.current != state_.current)
        change(after);
}

void ToolState::setSkinPaint(SkinPaintTool tool)
{
    State after = state_;
    after.skinPaint = std::move(tool);
    change(after);
}

void ToolState::change(const State &after)
{
    if (undo_.isRecording())
        undo_.record(
            {[this, before = state_] { restore(before); }, [this, after] { restore(after); }});
    restore(after);
}

void ToolState::restore(const State &state)
{
    const bool isOtherTool = state_.current != state.current;
    state_ = state;
    if (!isOtherTool)
        return;
    events_.raise("ToolChanged");
    events_.raise("PostToolChanged");
}

} // namespace host
