#include "players/Spectator.h"

#include "base/FrameTimer.h"
#include "base/Logger.h"
#include "input/InputDevice.h"
#include "players/IMatch.h"
#include "scene/Node.h"
#include "scene/Transforms.h"

namespace {

constexpr float kYawShare = 1 / 50.0f;    // degrees a frame at full steering
constexpr float kPitchShare = 1 / 150.0f; // degrees a frame at full steering

float pressed(InputDevice& device, int button)
{
    return device.isPressed(button) ? 1.0f : 0.0f;
}

} // namespace

Spectator::Spectator(IMatch& ownMatch, InputDevice& ownDevice) : Actor(ownMatch, ownDevice)
{
    logLine(2) << "Registering " << getName() << std::endl;
    const std::string count = std::to_string(match.getActorCount());
    yawNode = node->createChild("ActorYaw" + count);
    yawNode->transform(translation(glm::vec3(0, 2, 5)), true);
    pitchNode = yawNode->createChild("ActorPitch" + count);
    pitchNode->attach(getCamera());
}

std::string Spectator::getName() const
{
    return "Spectator " + std::to_string(getNumber()) + ", " + device.getName();
}

void Spectator::update()
{
    if (!device.isConnected()) {
        // Left without its end: a line a frame would drown the log.
        logLine(0) << "\n\tERROR! " << device.getName() << " Not Found!\n";
        return;
    }
    device.update();
    const float steering = device.getAxis(InputDevice::kSteeringAxis);
    turn(steering);
    move();
    tilt(steering);
}

void Spectator::turn(float steering)
{
    yawNode->transform(rotation(-steering * kYawShare, glm::vec3(0, 1, 0)), true);
}

void Spectator::move()
{
    const glm::vec3 forward(0, 0, -1), left(-1, 0, 0);
    const glm::vec3 direction =
        forward * (pressed(device, InputDevice::kAccelerate) - pressed(device, InputDevice::kBrake)) +
        left * (pressed(device, InputDevice::kSteerLeft) - pressed(device, InputDevice::kSteerRight));
    if (direction == glm::vec3(0)) return;
    yawNode->transform(translation(glm::normalize(direction) * gameDelta()), true);
}

void Spectator::tilt(float steering)
{
    pitchNode->transform(rotation(steering * kPitchShare, glm::vec3(-1, 0, 0)), true);
}

glm::vec3 Spectator::getPosition() const
{
    return yawNode->getWorldPosition();
}
