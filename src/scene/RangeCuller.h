#pragma once

#include <glm/glm.hpp>

#include <vector>

class Mesh;

/// A stretch of an index list.
struct IndexRange {
    unsigned first = 0; ///< number of the first index
    unsigned count = 0; ///< indices

    bool operator==(const IndexRange&) const = default;
};

/// Finds the stretches of a large static mesh that a view may show, so that the rest never reaches the GPU. Keeps the
/// bounds of runs of consecutive triangles; the order of the indices stays as it is. Built once per mesh, which is not
/// needed afterwards.
class RangeCuller {
public:
    /// Take the bounds of the mesh. indicesPerRun: a multiple of 3, at least 3. Runs do best when they are compact:
    /// some cells of one row of a grid.
    RangeCuller(const Mesh& mesh, unsigned indicesPerRun);

    /// A stretch and the box around it, in the mesh's coordinates.
    struct Run {
        IndexRange range;
        glm::vec3 min, max;
    };

    /// Return the stretches whose bounds touch the view and whose nearest point to the eye is at least `from` and less
    /// than `to` away, nearest first, so that what they hide behind them is never shaded. toClip: the mesh's
    /// coordinates to clip space; eye, from and to in the mesh's coordinates and units. They point into the culler.
    std::vector<const Run*> visible(const glm::mat4& toClip, const glm::vec3& eye, float from, float to) const;

private:
    std::vector<Run> runs;
};
