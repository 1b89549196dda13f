#include "scene/RangeCuller.h"

#include "base/Assert.h"
#include "scene/Mesh.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace {

/// The planes that bound a view: the dot product with (x, y, z, 1) is negative outside.
using Planes = std::array<glm::vec4, 6>;

Planes planesOf(const glm::mat4& toClip)
{
    const glm::mat4 rows = glm::transpose(toClip);
    return {rows[3] + rows[0], rows[3] - rows[0], rows[3] + rows[1], rows[3] - rows[1], rows[3] + rows[2],
        rows[3] - rows[2]};
}

/// Return whether all of the box lies outside the same plane.
bool isOutside(const glm::vec3& min, const glm::vec3& max, const Planes& planes)
{
    return std::ranges::any_of(planes, [&](const glm::vec4& plane) {
        const glm::vec3 innermost = glm::mix(min, max, glm::greaterThan(glm::vec3(plane), glm::vec3(0)));
        return glm::dot(plane, glm::vec4(innermost, 1)) < 0;
    });
}

} // namespace

RangeCuller::RangeCuller(const Mesh& mesh, unsigned indicesPerRun)
{
    QKD_ASSERT(indicesPerRun >= 3 && indicesPerRun % 3 == 0, "a run holds whole triangles");
    const auto total = static_cast<unsigned>(mesh.indices.size());
    for (unsigned first = 0; first < total; first += indicesPerRun) {
        Run run{{first, std::min(indicesPerRun, total - first)}, glm::vec3(std::numeric_limits<float>::max()),
            glm::vec3(std::numeric_limits<float>::lowest())};
        for (unsigned i = first; i < first + run.range.count; ++i) {
            run.min = glm::min(run.min, mesh.positions[mesh.indices[i]]);
            run.max = glm::max(run.max, mesh.positions[mesh.indices[i]]);
        }
        runs.push_back(run);
    }
}

std::vector<const RangeCuller::Run*> RangeCuller::visible(const glm::mat4& toClip, const glm::vec3& eye, float from,
    float to) const
{
    const Planes planes = planesOf(toClip);
    std::vector<std::pair<float, const Run*>> found;
    for (const Run& run : runs) {
        const float distance = glm::distance(glm::clamp(eye, run.min, run.max), eye);
        if (distance < from || distance >= to || isOutside(run.min, run.max, planes)) continue;
        found.emplace_back(distance, &run);
    }
    std::ranges::stable_sort(found, {}, [](const auto& entry) { return entry.first; });
    std::vector<const Run*> result;
    result.reserve(found.size());
    for (const auto& [distance, run] : found) result.push_back(run);
    return result;
}
