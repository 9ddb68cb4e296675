// SPDX-License-Identifier: Apache-2.0
#include "api/dagColors.h"

#include <algorithm>

#include "scene/scene.h"

namespace host
{

namespace
{

// Close to the eight "user defined" colours of a fresh preference file, which objectColor 0..7
// counts through. Their exact values are not documented.
constexpr float kUserColors[8][3] = {
    {0.608f, 0.407f, 0.189f}, {0.608f, 0.628f, 0.189f}, {0.408f, 0.628f, 0.189f},
    {0.189f, 0.628f, 0.365f}, {0.189f, 0.628f, 0.628f}, {0.189f, 0.404f, 0.628f},
    {0.434f, 0.189f, 0.628f}, {0.628f, 0.189f, 0.412f},
};

constexpr float kDormantColor[3] = {0.0f, 0.016f, 0.376f}; // meshes and all that has no other

double numberOf(const Node &node, const char *attribute)
{
    return node.findAttribute(attribute) ? evaluateNumber(node.plug(attribute)) : 0.0;
}

MColor colorOf(const Node &node, const char *red, const char *green, const char *blue)
{
    return MColor(static_cast<float>(numberOf(node, red)),
                  static_cast<float>(numberOf(node, green)),
                  static_cast<float>(numberOf(node, blue)));
}

} // namespace

MColor objectColor(const Node &node)
{
    const int choice = static_cast<int>(numberOf(node, "useObjectColor")); // none, index, RGB
    if (choice == 2)
        return colorOf(node, "wireColorR", "wireColorG", "wireColorB");
    if (choice == 1) {
        const int index = std::clamp(static_cast<int>(numberOf(node, "objectColor")), 0, 7);
        return MColor(kUserColors[index]);
    }
    return MColor(kDormantColor);
}

} // namespace host
