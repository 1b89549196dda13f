#pragma once

class Attachable;
class IStage;
class PhysicNode;
class Player;
class SceneGraph;

/// One shot, from the moment it leaves the shooter's car. Owned by the match, which removes it when it is spent.
///
/// What stays of it afterwards is its scene node (some 300 bytes), detached: nodes are never freed. Its body and its
/// picture go with it.
class Ball {
public:
    static constexpr int kDamage = 20;      ///< of a car's 100 health points
    static constexpr int kLifetime = 5000;  ///< milliseconds of the frame timer
    static constexpr float kSpeed = 150.0f; ///< units per second, along the car's front

    Ball(SceneGraph& scene, IStage& stage, Player& owner);
    ~Ball();
    Ball(const Ball&) = delete;
    Ball& operator=(const Ball&) = delete;

    /// Counts a touch, at most one between two calls of clearHitFlag().
    void registerHit();
    void clearHitFlag() { hitFlag = false; }

    int getHits() const { return hits; }
    int getDamage() const { return kDamage; }
    Player* getOwner() const { return owner; }
    PhysicNode* getNode() const { return node; }
    double getAge() const;  ///< milliseconds of the frame timer
    bool isExpired() const; ///< its lifetime is over

private:
    PhysicNode* node;
    Player* owner;
    int hits = 0;
    bool hitFlag = false;
    IStage& stage;
    Attachable* model = nullptr;
    double spawnTime; // milliseconds of the frame timer
};
