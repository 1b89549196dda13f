#include "MatchStatistics.h"

#include "match/Match.h"
#include "physics/VehicleHandle.h"
#include "players/Ball.h"
#include "players/Player.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr std::size_t kTrailPasses = 360; // three simulated seconds of 1/120 s
constexpr float kStuckDistance = 2.0f;    // world units
constexpr float kThrottleGiven = 0.1f;
constexpr float kFallenBelow = -25.0f; // world y: on the way out of the world

float horizontalDistance(const glm::vec3& a, const glm::vec3& b)
{
    return glm::length(glm::vec2(a.x - b.x, a.z - b.z));
}

} // namespace

void MatchStatistics::observe()
{
    for (const auto& ball : match.getBalls()) shots += ball->getAge() == 0; // fired in this very pass

    const auto& actors = match.getActors();
    cars.resize(actors.size());
    for (std::size_t i = 0; i < actors.size(); ++i) {
        const Player& player = *actors[i];
        Car& car = cars[i];
        const bool died = player.getDeaths() != car.deaths;
        if (died) {
            const bool fell = car.lowest < kFallenBelow;
            falls += fell;
            deaths += !fell;
            hits += fell ? 0 : car.health / Ball::kDamage;
            car.trail.clear();
        } else {
            hits += (car.health - player.getHealth()) / Ball::kDamage;
        }
        car.deaths = player.getDeaths();
        car.health = player.getHealth();
        car.lowest = player.getHeight();

        ++carPasses;
        upsideDown += player.getChassisTransform()[1].y < 0;
        car.trail.push_back(player.getPosition());
        if (car.trail.size() <= kTrailPasses) continue;
        const bool throttle = player.getVehicle()->getRawInputs().getAnalogAccel() > kThrottleGiven;
        stuck += throttle && horizontalDistance(car.trail.front(), car.trail.back()) < kStuckDistance;
        car.trail.pop_front();
    }
}

void MatchStatistics::print() const
{
    const double total = static_cast<double>(std::max(carPasses, 1L));
    std::printf("shots %d hits %d deaths %d falls %d upside_down_percent %.1f stuck_percent %.1f", shots, hits, deaths,
        falls, 100 * static_cast<double>(upsideDown) / total, 100 * static_cast<double>(stuck) / total);
}
