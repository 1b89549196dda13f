#pragma once

#include "assets/Model.h"

/// A large textured box around the play area, drawn without writing depth: everything else stays in front of it. Built
/// by the game, which binds its uniform "tex".
class Skybox final : public Model {
public:
    Skybox();

    void draw() override;
};
