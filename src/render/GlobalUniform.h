#pragma once

#include "gpu/IUniform.h"

class Renderer;

/// A uniform source that every model may share: it reads the renderer's state, such as the camera of the viewport being
/// drawn. Owned by the renderer.
template <class T>
class GlobalUniform : public IUniform<T> {
public:
    explicit GlobalUniform(Renderer* owner) : renderer(owner) {}

protected:
    ~GlobalUniform() = default;

    Renderer* renderer; // forward-declared only: the renderer holds such sources itself
};
