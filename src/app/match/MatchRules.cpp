#include "app/match/MatchRules.h"

#include "app/base/FrameTimer.h"
#include "app/match/ViewportLayout.h"
#include "physics/PhysxManager.h"
#include "players/IStage.h"
#include "players/Player.h"

#include <algorithm>

namespace {

constexpr float kLowestHeight = -30.0f; // world y; whatever is below has left the field
const physx::PxVec3 kVehicleGravity(0, -9.81f, 0); // units per second squared, at the vehicles' own time step

} // namespace

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

void MatchRules::updateMatch()
{
    for (Actor* actor : actors) {
        actor->update();
        if (!actor->isPlayer()) continue;

        Player* player = static_cast<Player*>(actor);
        if (player->getHeight() < kLowestHeight) player->die();
        if (player->hasSound()) player->drawLabel();
    }
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
