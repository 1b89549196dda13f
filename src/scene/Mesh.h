#pragma once

#include "base/ILibraryObject.h"

#include <glm/glm.hpp>

#include <vector>

/// Geometry on the CPU: per-vertex arrays of equal length and a list of 16-bit triangle indices. Imported meshes are
/// shared through the asset library; generated ones belong to their maker.
class Mesh final : public ILibraryObject {
public:
    std::vector<glm::vec3> positions;
    std::vector<glm::vec3> normals;
    std::vector<glm::vec3> tangents;
    std::vector<glm::vec3> bitangents;
    std::vector<glm::vec2> texcoords;
    std::vector<unsigned short> indices; ///< in face order

    unsigned getVertexCount() const { return static_cast<unsigned>(positions.size()); }

    /// Lower min and raise max to take in every position; the caller supplies their starting values.
    void getBounds(glm::vec3& min, glm::vec3& max) const;

    /// Replace the normals by smooth ones: the sum of the adjoining faces' unit normals, each the negative of the
    /// usual counter-clockwise one, normalised.
    void calculateNormals();

    /// Swap two components of every normal: x and y if both are named, else x and z, else y and z.
    void swapNormalAxes(bool x, bool y, bool z);

    /// Negate one component of every normal: x if named, else y, else z.
    void invertNormalAxes(bool x, bool y, bool z);
};
