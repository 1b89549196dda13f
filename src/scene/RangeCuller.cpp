#include "scene/RangeCuller.h"

#include "base/Assert.h"
#include "scene/Mesh.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

/// Return whether all corners of the box lie outside the same plane of the view.
bool isOutside(const glm::vec3& min, const glm::vec3& max, const glm::mat4& toClip)
{
    int below[3] = {}, above[3] = {};
    for (int corner = 0; corner < 8; ++corner) {
        const glm::vec3 point(corner & 1 ? max.x : min.x, corner & 2 ? max.y : min.y, corner & 4 ? max.z : min.z);
        const glm::vec4 clip = toClip * glm::vec4(point, 1.0f);
        for (int axis = 0; axis < 3; ++axis) {
            below[axis] += clip[axis] < -clip.w;
            above[axis] += clip[axis] > clip.w;
        }
    }
    return std::any_of(below, below + 3, [](int n) { return n == 8; }) ||
        std::any_of(above, above + 3, [](int n) { return n == 8; });
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

std::vector<IndexRange> RangeCuller::visible(const glm::mat4& toClip, const glm::vec3& eye, float from, float to) const
{
    std::vector<std::pair<float, const Run*>> found;
    for (const Run& run : runs) {
        const float distance = glm::distance(glm::clamp(eye, run.min, run.max), eye);
        if (distance < from || distance >= to || isOutside(run.min, run.max, toClip)) continue;
        found.emplace_back(distance, &run);
    }
    std::ranges::stable_sort(found, {}, [](const auto& entry) { return entry.first; });
    std::vector<IndexRange> ranges;
    ranges.reserve(found.size());
    for (const auto& [distance, run] : found) ranges.push_back(run->range);
    return ranges;
}
