#include "input/TargetChoice.h"

#include "input/Bearing.h"
#include "input/IPilot.h"

#include <cmath>

namespace {

constexpr float kWorstScore = 100000000.0f;
constexpr float kNearness = 10; // square units: closer than that, distance hardly counts beside the angle

bool isOnField(const glm::vec3& position, const IField& field)
{
    const auto reach = static_cast<float>(field.getFieldSize());
    return std::abs(position.x) <= reach && std::abs(position.z) <= reach;
}

/// The lower, the better a target.
float score(const IPilot& hunter, const glm::vec3& position)
{
    const glm::vec3 offset = position - hunter.getPosition();
    const glm::vec3 forward = flatDirection(glm::vec3(hunter.getChassisTransform() * glm::vec4(0, 0, 1, 0)));
    const float angle = angleBetween(forward, flatDirection(offset));
    return std::abs(std::sqrt(std::sqrt(angle)) * (glm::dot(offset, offset) + kNearness));
}

} // namespace

const IPilot* chooseTarget(const IPilot& hunter, const IPilot* excluded, const IField& field)
{
    const IPilot* best = nullptr;
    float bestScore = kWorstScore;
    for (int i = 0; i < field.getActorCount(); ++i) {
        const IPilot& candidate = field.getPilot(i);
        const glm::vec3 position = candidate.getPosition();
        if (&candidate == &hunter || &candidate == excluded || !isOnField(position, field)) continue;
        if (const float candidateScore = score(hunter, position); candidateScore < bestScore) {
            bestScore = candidateScore;
            best = &candidate;
        }
    }
    return best;
}
