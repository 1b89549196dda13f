#pragma once

#include "audio/ISound.h"
#include "input/IPilot.h"
#include "physics/DrivingControls.h"
#include "players/Actor.h"
#include "players/BodyOwner.h"

#include <memory>

class ICarModels;
class IPresentation;
class PhysicNode;
class VehicleHandle;

/// How everybody sees a player.
struct PlayerLook {
    std::string name; ///< empty: the device's
    glm::vec4 colour; ///< red, green, blue, alpha
    std::string sign; ///< that stands for the player in little room: "1" to "6" for people
};

/// A driver with a car, steered by an input device. The match creates it, calls setUp() once, puts it into its lists,
/// and from then on update() once a frame; it decides hits and points and calls takeDamage(), addScore() and die().
class Player : public Actor, public IPilot {
public:
    Player(IMatch& match, IPresentation& presentation, InputDevice& device, PlayerLook look);

    /// Build the car and its nodes and drop it into the field. To be called before the match counts this player in.
    void setUp();

    glm::vec4 getColor() const { return look.colour; }
    const std::string& getSign() const { return look.sign; }

    /// Return whether somebody hears this player: with an engine, effects at full volume and a label on the screen.
    virtual bool hasSound() const { return true; }

    std::string getName() const override; ///< "(3) Player 1, XBOX 2": score, player number, name
    void update() override;               ///< read the device, drive, shoot, move the smoke
    bool isPlayer() const override { return true; }
    glm::vec3 getPosition() const override; ///< of the chassis

    void takeDamage(int amount); ///< lower the health, not below 0; rumble and quack
    void die();                  ///< count a death, restore the health, respawn
    void respawn();              ///< stop the car and drop it anywhere from height 50, upright
    void addScore(int points) { score += points; }

    /// Write rank, score and name where this player looks.
    void drawLabel() const;

    int getHealth() const { return health; } ///< 0 to 100
    int getScore() const { return score; }
    int getDeaths() const override { return deaths; }
    VehicleHandle* getVehicle() const { return vehicle; }
    PhysicNode* getChassisNode() const { return chassisNode; }
    glm::mat4 getLaunchTransform() const override;
    glm::mat4 getChassisTransform() const override;
    float getForwardSpeed() const override;
    float getHeight() const; ///< world y of the chassis

private:
    void createCar();
    void startEngine();
    void drive();
    void shoot();
    void quack();
    void createLaunchNode();
    void createCameraNode();
    Node* createDriverNode() const;
    Node* createExhaustNode() const;
    Node* createWheel(unsigned wheel) const;

    IPresentation& presentation;
    PlayerLook look;
    BodyOwner bodyOwner{this, nullptr};
    PhysicNode* chassisNode = nullptr;
    VehicleHandle* vehicle = nullptr;
    DrivingControls controls;
    Node* launchNode = nullptr; // where shots leave the car
    ICarModels* models = nullptr;
    std::unique_ptr<ISound> engine; // null for those who are not heard
    double lastShotTime;            // milliseconds of the frame timer
    int health;
    int score = 0;
    int deaths = 0;
    int playerNumber = 0;
};
