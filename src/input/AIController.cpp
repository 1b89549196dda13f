#include "input/AIController.h"

#include "base/FrameTimer.h"
#include "input/Bearing.h"
#include "input/TargetChoice.h"

#include <algorithm>

namespace {

constexpr float kAheadAngle = 20.0f;        // degrees to either side within which a target counts as ahead
constexpr float kPointBlank = 2.0f;         // world units; so close, it shoots in any direction
constexpr float kFullThrottleAngle = 60.0f; // degrees; beyond it the car turns with full throttle
constexpr float kHandBrakeAngle = 90.0f;    // degrees
constexpr float kHandBrakeSpeed = 8.0f;     // units per second
constexpr double kPatience = 2.0;           // milliseconds out of sight after which another target is looked for
constexpr float kLeastSteering = 0.3f;      // at angle 0; rises to 1 at 180 degrees

} // namespace

AIController::AIController(int number) : index(number - 1), lastSeen(FrameTimer::getInstance()->getTimeMs()) {}

void AIController::setPlayer(const IPilot& ownPilot, const IField& ownField)
{
    pilot = &ownPilot;
    field = &ownField;
}

void AIController::update()
{
    updateTarget();
    if (target) measure();
}

void AIController::updateTarget()
{
    const IPilot* held = target;
    if (target && target->getDeaths() != targetDeaths) target = nullptr;
    if (FrameTimer::getInstance()->getTimeMs() - lastSeen > kPatience) target = nullptr;
    if (target) return;

    target = chooseTarget(*pilot, held, *field);
    if (target) targetDeaths = target->getDeaths();
}

void AIController::measure()
{
    const glm::vec3 offset = target->getPosition() - pilot->getPosition();
    const glm::vec3 toTarget = flatDirection(offset);
    const glm::vec3 forward = flatDirection(glm::vec3(pilot->getLaunchTransform() * glm::vec4(0, 0, 1, 0)));
    const glm::vec3 sideAxis(pilot->getChassisTransform() * glm::vec4(-1, 0, 0, 0));

    side = glm::dot(toTarget, sideAxis);
    angle = angleBetween(forward, toTarget);
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
        return std::clamp((kLeastSteering + (1 - kLeastSteering) * angle / 180) * glm::sign(side), -1.0f, 1.0f);
    return 0;
}

std::string AIController::getName() const
{
    return "AI-Controller " + std::to_string(index);
}
