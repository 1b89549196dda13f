#pragma once

#include "scene/Camera.h"
#include "scene/Viewport.h"

class Node;

/// A viewport with a camera of its own, as the game's states show the world where it is nobody's in particular. Owned
/// by its state, and never moved: the renderer and a node hold on to its parts.
class OverviewViewport {
public:
    /// rect in pixels; node: where the camera hangs.
    OverviewViewport(const Viewport::Rect& rect, Node& node);
    OverviewViewport(const OverviewViewport&) = delete;
    OverviewViewport& operator=(const OverviewViewport&) = delete;

    Viewport* getViewport() { return &viewport; }

private:
    Camera camera;
    Viewport viewport;
};
