#pragma once

#include "scene/Camera.h"
#include "scene/Viewport.h"

/// A viewport with a camera of its own, as the game's states show the world where it is nobody's in particular. Owned
/// by its state, and never moved: the renderer and a node hold on to its parts.
class StateView {
public:
    /// rect in pixels; node: where the camera hangs.
    StateView(const Viewport::Rect& rect, Node* node);
    StateView(const StateView&) = delete;
    StateView& operator=(const StateView&) = delete;

    Viewport* getViewport() { return &viewport; }

private:
    Camera camera;
    Viewport viewport;
};
