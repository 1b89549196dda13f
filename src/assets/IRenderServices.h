#pragma once

#include "gpu/IUniform.h"

#include <string>

class Camera;

/// What models need of the renderer, which lies above them. The renderer implements it and registers itself when it is
/// constructed.
class IRenderServices {
public:
    /// The registered renderer; null until there is one.
    static IRenderServices* current();

    /// Borrowed; null withdraws it.
    static void setCurrent(IRenderServices* services);

    /// "viewMatrix", "projectionMatrix" or "normalMatrix" of the camera being drawn.
    virtual UniformVariant& getGlobalUniform(const std::string& name) = 0;

    /// The camera of the viewport being drawn.
    virtual Camera* getCurrentCamera() const = 0;

    virtual void cullFrontFaces() = 0; ///< the rule; what one sees is wound clockwise from outside
    virtual void cullBackFaces() = 0;

protected:
    ~IRenderServices() = default;
};
