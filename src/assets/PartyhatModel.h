#pragma once

#include "assets/CelModel.h"
#include "assets/Uniform_AttachableTransformation.h"
#include "gpu/Uniform_Color.h"

#include <glm/glm.hpp>

#include <memory>

class Mesh;
class QKD_Game;

/// A leader's hat: the library's mesh "Partyhat". Each construction rebuilds the shared mesh's normals for its
/// lying-down modelling, always to the same result.
class PartyhatModel final : public CelModel {
public:
    PartyhatModel(const glm::vec4& hatColor, QKD_Game* game);
    ~PartyhatModel();

    QKD_Game* getOwner() const { return owner; }
    const glm::vec4& getColor() const { return color; }

private:
    Mesh* mesh; ///< null when it failed to load
    glm::vec4 color;
    QKD_Game* owner;
    std::unique_ptr<MeshGeometry> geometry;
    Uniform_AttachableTransformation transformation;
    Uniform_Color colourSource;
};
