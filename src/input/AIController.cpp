#include "input/AIController.h"

#include "base/FrameTimer.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float kAheadAngle = 20.0f;        // degrees to either side within which a target counts as ahead
constexpr float kPointBlank = 2.0f;         // world units; so close, it shoots in any direction
constexpr float kFullThrottleAngle = 60.0f; // degrees; beyond it the car turns with full throttle
constexpr float kHandBrakeAngle = 90.0f;    // degrees
constexpr float kHandBrakeSpeed = 8.0f;     // units per second
constexpr double kPatience = 2.0;           // milliseconds out of sight after which another target is looked for
constexpr float kLeastSteering = 0.3f;      // at angle 0; rises to 1 at 180 degrees

glm::vec3 flattened(const glm::vec3& vector)
{
    return {vector.x, 0, vector.z};
}

/// The unit vector, or the null vector for one that has no direction: two cars may stand right above one another.
glm::vec3 direction(const glm::vec3& vector)
{
    const float length = glm::length(vector);
    return length > 0 ? vector / length : glm::vec3(0.0f);
}

float sign(float value)
{
    return value > 0 ? 1.0f : value < 0 ? -1.0f : 0.0f;
}

} // namespace

AIController::AIController(int number) : index(number - 1), lastSeen(FrameTimer::getInstance()->getTimeMs()) {}

void AIController::take(const IPilot& ownPilot, const IHunt& field)
{
    pilot = &ownPilot;
    hunt = &field;
}

void AIController::update()
{
    chooseTarget();
    if (target) measure();
}

void AIController::chooseTarget()
{
    const IPilot* held = target;
    if (target && target->getDeaths() != targetDeaths) target = nullptr;
    if (FrameTimer::getInstance()->getTimeMs() - lastSeen > kPatience) target = nullptr;
    if (target) return;

    target = hunt->findTarget(*pilot, held);
    if (target) targetDeaths = target->getDeaths();
}

void AIController::measure()
{
    const glm::vec3 offset = target->getPosition() - pilot->getPosition();
    const glm::vec3 toTarget = direction(flattened(offset));
    const glm::vec3 forward = direction(flattened(glm::vec3(pilot->getLaunchTransform() * glm::vec4(0, 0, 1, 0))));
    const glm::vec3 sideAxis(pilot->getChassisTransform() * glm::vec4(-1, 0, 0, 0));

    side = glm::dot(toTarget, sideAxis);
    angle = glm::degrees(std::acos(std::clamp(glm::dot(forward, toTarget), -1.0f, 1.0f)));
    distance = glm::length(offset);
    if (angle < kAheadAngle) lastSeen = FrameTimer::getInstance()->getTimeMs();
}

bool AIController::isPressed(int button)
{
    if (!target) return false;
    if (button == kShoot) return angle < kAheadAngle || distance < kPointBlank;
    if (button == kHandBrake) return angle > kHandBrakeAngle && pilot->getForwardSpeed() > kHandBrakeSpeed;
    return false;
}

float AIController::getAxis(int axis)
{
    if (!target) return 0;
    if (axis == kThrottleAxis) return angle > kFullThrottleAngle ? 1.0f : std::clamp(1 - angle / 360, -1.0f, 1.0f);
    if (axis == kSteeringAxis)
        return std::clamp((kLeastSteering + (1 - kLeastSteering) * angle / 180) * sign(side), -1.0f, 1.0f);
    return 0;
}

std::string AIController::getName() const
{
    return "AI-Controller " + std::to_string(index);
}
