#include "players/Player.h"

#include "base/FrameTimer.h"
#include "base/Logger.h"
#include "base/Random.h"
#include "base/Translation.h"
#include "input/InputDevice.h"
#include "physics/PhysicNode.h"
#include "physics/PhysxManager.h"
#include "physics/VehicleHandle.h"
#include "players/IMatch.h"
#include "players/IPresentation.h"
#include "scene/SceneGraph.h"
#include "scene/Transforms.h"

#include <PxRigidDynamic.h>
#include <vehicle/PxVehicleComponents.h>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kFullHealth = 100;
constexpr double kShotInterval = 700; // milliseconds that must pass between two shots
constexpr float kShotVolume = 0.3f;
constexpr float kEngineVolume = 0.6f;
constexpr float kQuackVolume = 1.0f;
constexpr float kFaintQuackVolume = 0.2f; // of those who are not heard otherwise
constexpr unsigned kChassisShape = 4;     // a car's shapes: four wheels, then the chassis
constexpr float kDriverScale = 0.015f;    // the duck's mesh is about 130 units long
constexpr float kRespawnHeight = 50.0f;   // world units
constexpr int kRespawnRange = 200;        // world units, the edge of the square around the origin

struct Rumble {
    int milliseconds;
    std::uint16_t motorSpeed; // of both motors
};
constexpr Rumble kHitRumble{300, 60000};
constexpr Rumble kRespawnRumble{600, 30000};

void rumble(InputDevice& device, const Rumble& request)
{
    device.vibrate(request.milliseconds, request.motorSpeed, request.motorSpeed);
}

float randomPlace()
{
    const int place = drawRandom() % kRespawnRange - kRespawnRange / 2;
    return static_cast<float>(place);
}

} // namespace

Player::Player(IMatch& ownMatch, IPresentation& ownPresentation, InputDevice& ownDevice, PlayerLook ownLook)
    : Actor(ownMatch, ownDevice), presentation(ownPresentation), look(std::move(ownLook)),
      lastShotTime(FrameTimer::getInstance()->getTimeMs()), health(kFullHealth)
{
    if (look.name.empty()) look.name = device.getName();
}

void Player::setUp()
{
    playerNumber = match.getActorCount();
    logLine(2) << "Registering " << getName() << std::endl;

    createCar();
    CarNodes nodes;
    nodes.driver = createDriverNode();
    createLaunchNode();
    createCameraNode();
    nodes.exhaust = createExhaustNode();
    for (unsigned wheel = 0; wheel < nodes.wheels.size(); ++wheel) nodes.wheels[wheel] = createWheel(wheel);
    models = &presentation.addCar(nodes, getColor());
    device.setLight(getColor());
    vehicle->forceGear(physx::PxVehicleGearsData::eFIRST);
    if (hasSound()) startEngine();
    respawn();
}

void Player::createCar()
{
    vehicle = PhysxManager::instance()->createVehicle();
    bodyOwner.claim(*vehicle->getActor());
    chassisNode = vehicle->createWheelNode(kChassisShape);
    node->addChild(chassisNode);
}

void Player::startEngine()
{
    engine = presentation.createSound("engine", "Audio/engine.wav");
    engine->play(true, kEngineVolume);
}

Node* Player::createDriverNode() const
{
    Node* driver = chassisNode->createChild("Entchen");
    driver->setTransform(rotation(-90, glm::vec3(0, 1, 0)) * glm::scale(glm::mat4(1.0f), glm::vec3(kDriverScale)));
    return driver;
}

void Player::createLaunchNode()
{
    launchNode = chassisNode->createChild("Abschusspunkt");
    launchNode->setTransform(translation(glm::vec3(0, 2, 3)));
}

void Player::createCameraNode()
{
    Node* cameraNode = chassisNode->createChild("PlayerCamera" + std::to_string(playerNumber));
    cameraNode->transform(rotation(180, glm::vec3(0, 1, 0)), true);
    cameraNode->transform(rotation(-10, glm::vec3(1, 0, 0)), true);
    cameraNode->transform(translation(glm::vec3(0, 1, 12)), true);
    cameraNode->attach(getCamera());
}

Node* Player::createExhaustNode() const
{
    return match.getSceneGraph()->getRoot()->createChild("Auspuff");
}

Node* Player::createWheel(unsigned wheel) const
{
    PhysicNode* wheelNode = vehicle->createWheelNode(wheel);
    wheelNode->setName("Tire");
    node->addChild(wheelNode);

    // The shape's axis is x, a cylinder's is y.
    Node* tire = wheelNode->createChild("Tire");
    tire->setTransform(rotation(90, glm::vec3(0, 0, 1)));
    return tire;
}

std::string Player::getName() const
{
    return "(" + std::to_string(score) + ") Player " + std::to_string(playerNumber) + ", " + look.name;
}

void Player::update()
{
    // Without its device the car keeps the last controls.
    if (device.isConnected()) {
        device.update();
        drive();
        shoot();
    }
    models->setEmitterPosition(getPosition());
}

void Player::drive()
{
    const DriverInput input{device.getAxis(InputDevice::kThrottleAxis), device.getAxis(InputDevice::kBrakeAxis),
        device.getAxis(InputDevice::kSteeringAxis), device.isPressed(InputDevice::kHandBrake)};
    const float throttle = controls.apply(input, *vehicle);
    if (engine) engine->setPitch(throttle);
}

void Player::shoot()
{
    const double now = FrameTimer::getInstance()->getTimeMs();
    if (!device.isPressed(InputDevice::kShoot) || now <= lastShotTime + kShotInterval) return;
    lastShotTime = now;
    match.addBall(this);
    presentation.playSound("bang", false, kShotVolume);
}

void Player::quack()
{
    presentation.playSound("duck", false, hasSound() ? kQuackVolume : kFaintQuackVolume);
}

glm::vec3 Player::getPosition() const
{
    return chassisNode->getWorldPosition();
}

void Player::takeDamage(int amount)
{
    health = std::max(health - amount, 0);
    rumble(device, kHitRumble);
    quack();
}

void Player::die()
{
    ++deaths;
    health = kFullHealth;
    respawn();
}

void Player::respawn()
{
    const float z = randomPlace(); // drawn first: places repeat from run to run
    const float x = randomPlace();
    vehicle->placeAt(glm::vec3(x, kRespawnHeight, z));
    rumble(device, kRespawnRumble);
    quack();
}

void Player::drawLabel() const
{
    const std::string place = std::to_string(match.getRank(*this)), points = std::to_string(score);
    presentation.addLabel({look.sign, translated("Pl. ") + place + " (" + points + ")", look.name},
        getViewport()->getRect());
}

glm::mat4 Player::getLaunchTransform() const
{
    return launchNode->getWorldTransform();
}

glm::mat4 Player::getChassisTransform() const
{
    return chassisNode->getWorldTransform();
}

float Player::getForwardSpeed() const
{
    return vehicle->computeForwardSpeed();
}

float Player::getHeight() const
{
    return getPosition().y;
}
