#pragma once

#include "assets/CelModel.h"

/// A leader's hat: the library's mesh "Partyhat". Each construction rebuilds the shared mesh's normals for its
/// lying-down modelling, always to the same result. Nothing is drawn when the mesh is missing.
class PartyhatModel final : public CelModel {
public:
    explicit PartyhatModel(const glm::vec4& color);
};
