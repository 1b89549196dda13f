#pragma once

#include "assets/Model.h"

/// A model of the "Cel" program, drawn twice: with back faces culled and the uniform "backface" at 1, then with front
/// faces culled and "backface" at 0. Front faces stay culled.
class CelModel : public Model {
public:
    void draw() override;

protected:
    CelModel(); ///< takes the program from the library
    ~CelModel() = default;
};
