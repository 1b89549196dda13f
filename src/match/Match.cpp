#include "match/Match.h"

#include "base/FrameTimer.h"
#include "match/HitRecorder.h"
#include "match/ViewportLayout.h"
#include "physics/PhysicNode.h"
#include "physics/PhysxManager.h"
#include "physics/Terrain.h"
#include "players/AIPlayer.h"
#include "players/Ball.h"
#include "players/IPresentation.h"
#include "players/Player.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float kLowestHeight = -30.0f; // world y; whatever is below has left the field
constexpr float kFlightMargin = 20.0f;  // world units beyond the field's half extent that a shot may fly
constexpr int kMostHits = 10;           // touches after which a ball is spent
constexpr int kHitPoints = 1;
constexpr int kKillBonus[Ranking::kPlaces + 1] = {8, 7, 6, 5}; // points by the victim's place; the last for anyone else
const physx::PxVec3 kVehicleGravity(0, -9.81f, 0); // units per second squared, at the vehicles' own time step

} // namespace

Match::Match(SceneGraph& ownScene, IPresentation& ownPresentation, const Terrain& ownGround, HitRecorder& ownHits,
    const PlayerColours& ownColours)
    : scene(ownScene), presentation(ownPresentation), ground(ownGround), hits(ownHits), colours(ownColours)
{
}

Match::~Match() = default;

void Match::addPlayer(InputDevice& device, const std::string& name)
{
    const std::size_t index = players.size();
    Player* player = new Player(*this, presentation, device, {name, colours.at(index), std::to_string(index + 1)});
    player->setUp();
    players.push_back(player);
    actors.push_back(player);
}

void Match::addComputerPlayer()
{
    AIPlayer* player = new AIPlayer(*this, presentation);
    player->setUp();
    computerPlayers.push_back(player);
    actors.push_back(player);
}

void Match::addBall(Player* shooter)
{
    balls.push_back(std::make_unique<Ball>(scene, presentation, *shooter));
}

void Match::updateMatch()
{
    updateParticipants();
    resolveHits();
    removeSpentBalls();
    hats.bob(FrameTimer::getInstance()->getTimeMs());
}

void Match::updateParticipants()
{
    for (Player* player : actors) {
        player->update();
        if (player->getHeight() < kLowestHeight) player->die();
        if (player->hasSound()) player->drawLabel();
    }
}

void Match::resolveHits()
{
    for (const auto& [victim, ball] : hits.collect()) {
        resolveHit(*victim, *ball);
        ball->spend();
    }
}

void Match::resolveHit(Player& victim, const Ball& ball)
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

int Match::killBonus(const Player& victim) const
{
    return kKillBonus[static_cast<std::size_t>(ranking.getPlace(&victim))];
}

void Match::updateRanking(Player& shooter)
{
    for (int place = ranking.update(&shooter, shooter.getScore()); place < Ranking::kPlaces; ++place) {
        if (const Player* leader = ranking.getLeader(place)) hats.give(place, *leader);
    }
}

void Match::removeSpentBalls()
{
    for (const auto& ball : balls) ball->clearHitFlag();
    std::erase_if(balls, [this](const auto& ball) { return ball->isSpent() || hasLeftPlay(*ball); });
}

bool Match::hasLeftPlay(const Ball& ball) const
{
    const float limit = 0.5f * static_cast<float>(ground.getSize()) + kFlightMargin;
    const glm::vec3 position = ball.getNode()->getWorldPosition();
    return position.y < kLowestHeight || ball.getHits() >= kMostHits || std::abs(position.x) > limit ||
        std::abs(position.z) > limit || ball.isExpired();
}

void Match::stepPhysics()
{
    const float dt = gameDelta();
    PhysxManager* physx = PhysxManager::instance();
    physx->updateVehicles(dt, kVehicleGravity);
    physx->step(dt);
}

void Match::writeSigns(const Viewport& view)
{
    for (const Player* player : actors) presentation.addSign(player->getSign(), player->getPosition(), view);
}

void Match::layoutViewports()
{
    const glm::ivec2 window = presentation.getWindowSize();
    for (int i = 0; i < getHumanPlayerCount(); ++i) {
        players[static_cast<std::size_t>(i)]->getViewport()->setRect(viewportCell(getHumanPlayerCount(), i, window.x,
            window.y));
    }
}

std::optional<Viewport::Rect> Match::freeViewportRect() const
{
    const int count = getHumanPlayerCount();
    const bool cellIsFree = count % 2 == 1 && count != 1;
    if (!cellIsFree) return std::nullopt;

    const glm::ivec2 window = presentation.getWindowSize();
    return viewportCell(count, count, window.x, window.y);
}

const IPilot& Match::getPilot(int number) const
{
    return *actors.at(static_cast<std::size_t>(number));
}

int Match::getFieldSize() const
{
    return ground.getSize();
}

int Match::getRank(const Player& player) const
{
    return 1 + static_cast<int>(std::count_if(actors.begin(), actors.end(), [&player](const Player* other) {
        return other->getScore() > player.getScore();
    }));
}
