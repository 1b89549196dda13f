#include "players/Actor.h"

#include "players/IMatch.h"
#include "scene/SceneGraph.h"

namespace {

constexpr float kFov = 45.0f; // degrees
constexpr float kAspect = 0.6666667f;
constexpr float kNear = 0.1f;    // world units
constexpr float kFar = 10000.0f; // world units
const glm::vec3 kInitialTranslation(0, 0, -10);
const glm::vec4 kClearColour(0.3f, 0.6f, 1.0f, 1.0f);

} // namespace

Actor::Actor(IMatch& ownMatch, InputDevice& ownDevice)
    : match(ownMatch), device(ownDevice),
      node(ownMatch.getSceneGraph()->getRoot()->createChild("Actor" + std::to_string(ownMatch.getActorCount()))),
      number(ownMatch.getActorCount()), camera(kFov, kAspect, kNear, kFar, kInitialTranslation),
      viewport(0, 0, 800, 600)
{
    viewport.camera = &camera;
    viewport.clearColour = kClearColour;
}
