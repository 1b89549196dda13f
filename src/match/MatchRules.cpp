#include "match/MatchRules.h"

#include "base/FrameTimer.h"
#include "match/ViewportLayout.h"
#include "physics/PhysicNode.h"
#include "physics/PhysxManager.h"
#include "physics/Terrain.h"
#include "physics/VehicleHandle.h"
#include "players/AIPlayer.h"
#include "players/Ball.h"
#include "players/IStage.h"
#include "players/Player.h"

#include <PxPhysicsAPI.h>

#include <algorithm>
#include <cmath>

using namespace physx;

namespace {

constexpr float kLowestHeight = -30.0f; // world y; whatever is below has left the field
constexpr float kFlightMargin = 20.0f;  // world units beyond the field's half extent that a shot may fly
constexpr int kMostHits = 10;           // touches after which a ball is spent
constexpr int kHitPoints = 1;
constexpr int kKillBonus[Ranking::kPlaces + 1] = {8, 7, 6, 5}; // points by the victim's place; the last for anyone else
const PxVec3 kVehicleGravity(0, -9.81f, 0); // units per second squared, at the vehicles' own time step

glm::vec3 flatDirection(const glm::vec3& vector)
{
    const glm::vec3 flat(vector.x, 0, vector.z);
    const float length = glm::length(flat);
    return length > 0 ? flat / length : flat;
}

/// The lower, the better a target: near, and ahead rather than behind.
float targetScore(const IPilot& hunter, const glm::vec3& position)
{
    const glm::vec3 offset = position - hunter.getPosition();
    const glm::vec3 forward = flatDirection(glm::vec3(hunter.getChassisTransform() * glm::vec4(0, 0, 1, 0)));
    const float angle = glm::degrees(std::acos(std::clamp(glm::dot(forward, flatDirection(offset)), -1.0f, 1.0f)));
    return std::abs(std::sqrt(std::sqrt(angle)) * (glm::dot(offset, offset) + 10));
}

} // namespace

MatchRules::MatchRules() = default;

MatchRules::~MatchRules() = default;

void MatchRules::setWorld(SceneGraph* newSceneGraph, IStage* newStage)
{
    sceneGraph = newSceneGraph;
    stage = newStage;
    PhysxManager::getInstance(this);
}

void MatchRules::addPlayer(InputDevice* device)
{
    Player* player = new Player(*this, *stage, *device);
    player->setUp();
    players.push_back(player);
    actors.push_back(player);
}

void MatchRules::addComputerPlayer()
{
    AIPlayer* player = new AIPlayer(*this, *stage);
    player->setUp();
    computerPlayers.push_back(player);
    actors.push_back(player);
}

void MatchRules::addBall(Player* shooter)
{
    balls.push_back(std::make_unique<Ball>(*sceneGraph, *stage, *shooter));
}

void MatchRules::updateMatch()
{
    updateParticipants();
    resolveHits();
    hats.bob(FrameTimer::getInstance()->getTimeMs());
}

void MatchRules::updateParticipants()
{
    for (Actor* actor : actors) {
        actor->update();
        if (!actor->isPlayer()) continue;

        Player* player = static_cast<Player*>(actor);
        if (player->getHeight() < kLowestHeight) player->die();
        if (player->hasSound()) player->drawLabel();
    }
}

void MatchRules::resolveHits()
{
    std::vector<Ball*> spent;
    for (const auto& [victim, ball] : ballHits) {
        if (!isInPlay(ball)) continue;
        resolveHit(*victim, *ball);
        spent.push_back(ball);
    }
    ballHits.clear();

    for (const auto& ball : balls) {
        ball->clearHitFlag();
        if (hasLeftPlay(*ball)) spent.push_back(ball.get());
    }
    removeSpentBalls(spent);
}

void MatchRules::resolveHit(Player& victim, const Ball& ball)
{
    Player& shooter = *ball.getOwner();
    victim.takeDamage(ball.getDamage());
    shooter.addScore(kHitPoints);
    if (victim.getHealth() == 0) {
        shooter.addScore(killBonus(victim));
        victim.die();
    }
    updateRanking(shooter);
}

int MatchRules::killBonus(const Player& victim) const
{
    return kKillBonus[static_cast<std::size_t>(ranking.getPlace(&victim))];
}

void MatchRules::updateRanking(Player& shooter)
{
    for (int place = ranking.update(&shooter, shooter.getScore()); place < Ranking::kPlaces; ++place) {
        if (const Player* leader = ranking.getLeader(place)) hats.give(place, *leader);
    }
}

void MatchRules::removeShots()
{
    balls.clear();
    ballHits.clear();
}

bool MatchRules::hasLeftPlay(const Ball& ball) const
{
    const float limit = 0.5f * static_cast<float>(terrain->getSize()) + kFlightMargin;
    const glm::vec3 position = ball.getNode()->getWorldPosition();
    return position.y < kLowestHeight || ball.getHits() >= kMostHits || std::abs(position.x) > limit ||
        std::abs(position.z) > limit || ball.isExpired();
}

void MatchRules::removeSpentBalls(const std::vector<Ball*>& spent)
{
    std::erase_if(balls, [&spent](const std::unique_ptr<Ball>& ball) {
        return std::find(spent.begin(), spent.end(), ball.get()) != spent.end();
    });
}

void MatchRules::onContact(const PxContactPairHeader& header, const PxContactPair* pairs, PxU32 count)
{
    for (PxU32 i = 0; i < count; ++i) {
        if (pairs[i].events & PxPairFlag::eNOTIFY_TOUCH_FOUND) recordTouch(header);
    }
}

void MatchRules::recordTouch(const PxContactPairHeader& header)
{
    const auto isInPair = [&header](const PxActor* body) {
        return body == header.actors[0] || body == header.actors[1];
    };

    const auto touched = std::find_if(actors.begin(), actors.end(), [&](const Actor* actor) {
        return actor->isPlayer() && isInPair(static_cast<const Player*>(actor)->getVehicle()->getActor());
    });
    if (touched != actors.end()) {
        Player* victim = static_cast<Player*>(*touched);
        const PxActor* other =
            header.actors[0] == victim->getVehicle()->getActor() ? header.actors[1] : header.actors[0];
        const std::pair<Player*, Ball*> hit(victim, findBall(other));
        if (hit.second && std::find(ballHits.begin(), ballHits.end(), hit) == ballHits.end()) ballHits.push_back(hit);
    }

    const auto ball = std::find_if(balls.begin(), balls.end(),
        [&](const auto& candidate) { return isInPair(candidate->getNode()->actor); });
    if (ball != balls.end()) (*ball)->registerHit();
}

Ball* MatchRules::findBall(const PxActor* body) const
{
    const auto found =
        std::find_if(balls.begin(), balls.end(), [body](const auto& ball) { return ball->getNode()->actor == body; });
    return found == balls.end() ? nullptr : found->get();
}

bool MatchRules::isInPlay(const Ball* ball) const
{
    return std::any_of(balls.begin(), balls.end(), [ball](const auto& candidate) { return candidate.get() == ball; });
}

const IPilot* MatchRules::findTarget(const IPilot& hunter, const IPilot* excluded) const
{
    const Player* best = nullptr;
    float bestScore = 100000000.0f;
    const auto reach = static_cast<float>(terrain->getSize());
    for (const Actor* actor : actors) {
        if (!actor->isPlayer()) continue;
        const Player* candidate = static_cast<const Player*>(actor);
        const glm::vec3 position = candidate->getPosition();
        const bool isOutside = std::abs(position.x) > reach || std::abs(position.z) > reach;
        if (candidate == &hunter || candidate == excluded || isOutside) continue;
        if (const float score = targetScore(hunter, position); score < bestScore) {
            bestScore = score;
            best = candidate;
        }
    }
    return best;
}

void MatchRules::stepPhysics()
{
    const float dt = gameDelta();
    PhysxManager* physx = PhysxManager::instance();
    physx->updateVehicles(dt, kVehicleGravity);
    physx->step(dt);
}

void MatchRules::layoutViewports()
{
    const glm::ivec2 window = stage->getWindowSize();
    for (int i = 0; i < getHumanPlayerCount(); ++i) {
        const Viewport::Rect cell = viewportCell(getHumanPlayerCount(), i, window.x, window.y);
        players[static_cast<std::size_t>(i)]->getViewport()->setRect(cell.x, cell.y, cell.width, cell.height);
    }
}

std::optional<Viewport::Rect> MatchRules::freeViewportRect() const
{
    const int count = getHumanPlayerCount();
    const bool cellIsFree = count % 2 == 1 && count != 1;
    if (!cellIsFree) return std::nullopt;

    const glm::ivec2 window = stage->getWindowSize();
    return viewportCell(count, count, window.x, window.y);
}

int MatchRules::getRank(const Player& player) const
{
    return 1 + static_cast<int>(std::count_if(actors.begin(), actors.end(), [&player](const Actor* actor) {
        return actor->isPlayer() && static_cast<const Player*>(actor)->getScore() > player.getScore();
    }));
}
