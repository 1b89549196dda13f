#pragma once

#include "gpu/IUniform.h"

#include <string>

class Camera;

/// What models need of the renderer, which lies above them. The renderer implements it and registers itself when it is
/// constructed.
class IRenderServices {
public:
    /// Return the registered renderer; null until there is one.
    static IRenderServices* current();

    /// Register a renderer, which is borrowed; null withdraws it.
    static void setCurrent(IRenderServices* services);

    /// Return the source of "viewMatrix", "projectionMatrix" or "normalMatrix" of the camera being drawn.
    virtual UniformVariant& getGlobalUniform(const std::string& name) = 0;

    /// Return the camera of the viewport being drawn.
    virtual Camera* getCurrentCamera() const = 0;

    virtual void cullFrontFaces() = 0; ///< as usual: what is seen is wound clockwise from outside
    virtual void cullBackFaces() = 0;

protected:
    ~IRenderServices() = default;
};
