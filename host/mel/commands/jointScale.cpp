// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/jointScale.h"

namespace host::mel
{

void connectInverseScale(Scene &scene, const NodePtr &child, const NodePtr &newParent)
{
    if (!child->isA("joint"))
        return;
    const Plug input = child->plug("inverseScale");
    if (const Connection *source = child->source(input)) {
        if (!source->node->isA("joint"))
            return; // somebody else's
        scene.disconnect(source->plug(), input);
    }
    if (newParent && newParent->isA("joint"))
        scene.connect(newParent->plug("scale"), input);
}

} // namespace host::mel
