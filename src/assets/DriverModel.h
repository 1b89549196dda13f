#pragma once

#include "assets/CelModel.h"

/// The duck at the wheel: the library's mesh "Duck" in the colour of its player. Nothing is drawn when the mesh is
/// missing.
class DriverModel final : public CelModel {
public:
    explicit DriverModel(const glm::vec4& color);

    std::string getName() const override { return "Driver"; }
};
