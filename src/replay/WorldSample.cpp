#include "replay/WorldSample.h"

#include "base/Fingerprint.h"
#include "match/Match.h"
#include "physics/PhysicNode.h"
#include "physics/VehicleHandle.h"
#include "players/Ball.h"
#include "players/Player.h"

#include <PxPhysicsAPI.h>
#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

#include <algorithm>
#include <array>
#include <sstream>

namespace {

using Figures = std::array<float, 13>; // position, rotation (x, y, z, w), velocity, spin

Figures figuresOf(const physx::PxRigidDynamic& body)
{
    const physx::PxTransform pose = body.getGlobalPose();
    const physx::PxVec3 velocity = body.getLinearVelocity(), spin = body.getAngularVelocity();
    return {pose.p.x, pose.p.y, pose.p.z, pose.q.x, pose.q.y, pose.q.z, pose.q.w, velocity.x, velocity.y, velocity.z,
        spin.x, spin.y, spin.z};
}

glm::vec3 vectorAt(const recording::Participant& participant, int index)
{
    return {participant.figures(index), participant.figures(index + 1), participant.figures(index + 2)};
}

double distanceBetween(const recording::Participant& a, const recording::Participant& b, int index)
{
    return glm::length(glm::dvec3(vectorAt(a, index)) - glm::dvec3(vectorAt(b, index)));
}

double turnBetween(const recording::Participant& a, const recording::Participant& b)
{
    const auto rotationOf = [](const recording::Participant& participant) {
        const glm::dvec3 axis(vectorAt(participant, 3));
        return glm::dquat(participant.figures(6), axis.x, axis.y, axis.z);
    };
    const glm::dquat turn = glm::inverse(rotationOf(a)) * rotationOf(b);
    return glm::degrees(2 * std::atan2(glm::length(glm::dvec3(turn.x, turn.y, turn.z)), std::abs(turn.w)));
}

std::string amount(const char* what, double value, const char* unit)
{
    std::ostringstream text;
    text << what << " by " << value << unit;
    return text.str();
}

bool haveSameFigures(const recording::Participant& a, const recording::Participant& b, int first, int count)
{
    return std::equal(a.figures().begin() + first, a.figures().begin() + first + count, b.figures().begin() + first);
}

/// Return in what a participant differs from itself, empty for nothing.
std::string describe(const recording::Participant& was, const recording::Participant& is)
{
    if (!haveSameFigures(was, is, 0, 3)) return amount("position", distanceBetween(was, is, 0), " m");
    if (!haveSameFigures(was, is, 3, 4)) return amount("rotation", turnBetween(was, is), " degrees");
    if (!haveSameFigures(was, is, 7, 3)) return amount("velocity", distanceBetween(was, is, 7), " m/s");
    if (!haveSameFigures(was, is, 10, 3)) return amount("spin", distanceBetween(was, is, 10), " rad/s");
    if (was.health() != is.health()) return amount("health", 1.0 * is.health() - was.health(), "");
    if (was.score() != is.score()) return amount("score", 1.0 * is.score() - was.score(), "");
    if (was.deaths() != is.deaths()) return amount("deaths", 1.0 * is.deaths() - was.deaths(), "");
    return "";
}

int pairsIn(const recording::Sample& a, const recording::Sample& b)
{
    return std::min(a.participants_size(), b.participants_size());
}

} // namespace

void takeSample(const Match& match, recording::Sample& sample)
{
    Fingerprint hash;
    const auto add = [&hash](const auto& value) { hash.add(&value, sizeof value); };
    sample.Clear();
    for (const Player* player : match.getActors()) {
        const Figures figures = figuresOf(*player->getVehicle()->getActor());
        recording::Participant& participant = *sample.add_participants();
        participant.mutable_figures()->Add(figures.begin(), figures.end());
        participant.set_health(player->getHealth());
        participant.set_score(player->getScore());
        participant.set_deaths(player->getDeaths());
        add(figures);
        add(std::array{player->getHealth(), player->getScore(), player->getDeaths()});
    }
    for (const auto& ball : match.getBalls()) add(figuresOf(*ball->getNode()->actor->is<physx::PxRigidDynamic>()));
    for (int place = 0; place < Ranking::kPlaces; ++place) {
        const Player* leader = match.getRanking().getLeader(place);
        add(leader ? leader->getNumber() : -1);
    }
    sample.set_hash(hash.value());
}

std::string describeDifference(const recording::Sample& recorded, const recording::Sample& now)
{
    for (int i = 0; i < pairsIn(recorded, now); ++i) {
        const std::string difference = describe(recorded.participants(i), now.participants(i));
        if (!difference.empty()) return "Player " + std::to_string(i) + ": " + difference;
    }
    if (recorded.participants_size() != now.participants_size())
        return amount("participants", now.participants_size() - recorded.participants_size(), "");
    return recorded.hash() == now.hash() ? "" : "hash, of shots or places";
}

double greatestDistance(const recording::Sample& recorded, const recording::Sample& now)
{
    double greatest = 0;
    for (int i = 0; i < pairsIn(recorded, now); ++i)
        greatest = std::max(greatest, distanceBetween(recorded.participants(i), now.participants(i), 0));
    return greatest;
}

void Comparison::check(int pass, const recording::Sample& recorded, const Match& match)
{
    takeSample(match, now);
    ++checks;
    const std::string difference = describeDifference(recorded, now);
    if (difference.empty()) return;
    ++different;
    if (first.empty()) first = "pass " + std::to_string(pass) + ": " + difference;
    distance = std::max(distance, greatestDistance(recorded, now));
}
