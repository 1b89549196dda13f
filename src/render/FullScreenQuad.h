#pragma once

#include "gpu/GLBuffer.h"

class Shaderprogram;

/// The quad that full-screen passes draw: four corners as a triangle strip in normalised device coordinates. Owned by
/// the passes; created with a current context.
class FullScreenQuad {
public:
    FullScreenQuad();

    /// Draw with the program, which is in use and reads the corners as its attribute "v_coord".
    void draw(Shaderprogram& program) const;

private:
    GLBuffer buffer{GL_ARRAY_BUFFER};
    GlObject vertexArray{GlKind::VertexArray};
};
