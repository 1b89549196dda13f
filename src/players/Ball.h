#pragma once

#include "players/BodyOwner.h"

#include <memory>

class IPresentation;
class PhysicNode;
class SceneGraph;

/// One shot, from the moment it leaves the shooter's car. Owned by the match, which removes it when it is spent.
///
/// What stays of it afterwards is its scene node (some 300 bytes), detached: nodes are never freed. Its body and its
/// model go with it.
class Ball {
public:
    static constexpr int kDamage = 20;      ///< of a car's 100 health points
    static constexpr int kLifetime = 5000;  ///< milliseconds of the frame timer
    static constexpr float kSpeed = 150.0f; ///< units per second, along the car's front

    Ball(SceneGraph& scene, IPresentation& presentation, Player& owner);
    ~Ball();
    Ball(const Ball&) = delete;
    Ball& operator=(const Ball&) = delete;

    /// Count a touch, at most one between two calls of clearHitFlag().
    void registerHit();
    void clearHitFlag() { hitFlag = false; }

    /// Mark the shot as spent: the match removes it at the end of the pass.
    void spend() { spent = true; }
    bool isSpent() const { return spent; }

    int getHits() const { return hits; }
    int getDamage() const { return kDamage; }
    Player* getOwner() const { return owner; }
    PhysicNode* getNode() const { return node; }
    double getAge() const;  ///< milliseconds of the frame timer
    bool isExpired() const; ///< its lifetime is over

    /// Return whether it was fired before the other one.
    bool isOlderThan(const Ball& other) const;

private:
    PhysicNode* node;
    Player* owner;
    BodyOwner bodyOwner{nullptr, this};
    int hits = 0;
    bool hitFlag = false;
    bool spent = false;
    std::shared_ptr<void> model;
    double spawnTime; // milliseconds of the frame timer
};
