#pragma once

#include "gpu/IUniform.h"

#include <glm/glm.hpp>

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

    /// Return how many pixels high a world unit is seen at that place in the viewport being drawn.
    virtual float getPixelsPerUnit(const glm::vec3& position) const = 0;

    /// Return whether the shadow of anything but the ground may fall into a box in this frame. The corners in
    /// coordinates that the transform leads from to the world's.
    virtual bool mayBeShaded(const glm::mat4& toWorld, const glm::vec3& min, const glm::vec3& max) const = 0;

    virtual void cullFrontFaces() = 0; ///< as usual: what is seen is wound clockwise from outside
    virtual void cullBackFaces() = 0;

protected:
    ~IRenderServices() = default;
};
