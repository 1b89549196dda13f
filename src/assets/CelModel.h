#pragma once

#include "assets/Model.h"

#include <glm/glm.hpp>

/// A model of the "Cel" program in one colour, drawn twice: with back faces culled and the uniform "backface" at 1,
/// then with front faces culled and "backface" at 0. Front faces stay culled.
class CelModel : public Model {
public:
    void draw() override;

protected:
    explicit CelModel(const glm::vec4& color); ///< takes the program from the library and binds every uniform it has
    ~CelModel() = default;

    /// Issue one of the two draw calls with the current program.
    virtual void drawShape() { Model::draw(); }
};
