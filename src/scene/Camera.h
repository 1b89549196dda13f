#pragma once

#include "scene/Attachable.h"

#include <glm/glm.hpp>

#include <array>

/// Turns the pose of the node it hangs on into a view matrix, carries a perspective projection, and answers whether a
/// point lies roughly inside the view. Owned by an actor or a game state; drawn through a Viewport.
class Camera final : public Attachable {
public:
    /// Make a camera from fov in degrees, near and far in world units. They shape the culling planes only: the
    /// projection is the same for every camera (45 degrees, 1.3333334, 0.1, 1000), until it is fitted. position is the
    /// initial view's translation, until the first update().
    Camera(float fov, float aspect, float near, float far, const glm::vec3& position);

    /// Have projection and culling planes show a view of that width to height without distortion: as much up and down
    /// as ever, more or less to the sides.
    void fit(float aspect);

    void update() override; ///< take the view from the node's world transform
    void accept(INodeVisitor* visitor) override { visitor->visitCamera(this); }
    void acceptRelease(INodeVisitor* visitor) override { visitor->releaseCamera(this); }

    glm::mat4 getView() const { return view; }
    glm::mat4 getProjection() const { return projection; }
    glm::mat3 getNormalMatrix() const; ///< inverse transpose of the view's upper-left 3 x 3

    /// Return culling plane 0 to 5 (near, far, sides, top and bottom), in view space: a x + b y + c z + d >= 0 inside.
    glm::vec4 getPlane(int i) const { return planes.at(static_cast<std::size_t>(i)); }

    glm::vec3 getPosition() const; ///< the node's world position

    /// Return false when the world point lies more than 5 units outside one of the planes.
    bool isVisible(const glm::vec3& point) const;

private:
    glm::mat4 projection{1.0f};
    glm::mat4 view{1.0f};
    glm::mat4 eyeOffset{1.0f};
    std::array<glm::vec4, 6> planes{};
};
