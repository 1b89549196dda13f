#pragma once

#include <GL/glew.h>

class Shaderprogram;

/// The quad that full-screen passes draw: four corners as a triangle strip in normalised device coordinates.
/// Created with a current context; its GL objects live until the process ends.
class FullScreenQuad {
public:
    FullScreenQuad();

    /// Draws with the program, which is in use and reads the corners as its attribute "v_coord".
    void draw(Shaderprogram& program) const;

    GLuint getVertexArray() const { return vertexArray; }

private:
    GLuint buffer = 0;
    GLuint vertexArray = 0;
};
