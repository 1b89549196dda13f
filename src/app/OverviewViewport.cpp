#include "app/OverviewViewport.h"

#include "scene/Node.h"

namespace {

constexpr float kFov = 45.0f; // degrees
constexpr float kAspect = 1.3333334f;
constexpr float kNear = 0.1f;    // world units
constexpr float kFar = 10000.0f; // world units
const glm::vec3 kInitialTranslation(0, -2, -5);
const glm::vec4 kClearColour(0.8f, 0.8f, 0.8f, 1.0f);

} // namespace

OverviewViewport::OverviewViewport(const Viewport::Rect& rect, Node& node)
    : camera(kFov, kAspect, kNear, kFar, kInitialTranslation), viewport(rect.x, rect.y, rect.width, rect.height)
{
    viewport.camera = &camera;
    viewport.clearColour = kClearColour;
    node.attach(&camera);
}
