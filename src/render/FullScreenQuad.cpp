#include "render/FullScreenQuad.h"

#include "gpu/DrawCalls.h"
#include "gpu/Shaderprogram.h"

#include <iterator>

FullScreenQuad::FullScreenQuad()
{
    constexpr GLfloat kCorners[] = {-1, -1, -1, 1, 1, -1, 1, 1};
    buffer.setData(std::size(kCorners), kCorners, GL_STATIC_DRAW);
}

void FullScreenQuad::draw(Shaderprogram& program) const
{
    const GLint location = program.getAttribLocation("v_coord");
    if (location < 0 || !isReadyToDraw(GL_TRIANGLE_STRIP)) return;
    const GLuint attribute = static_cast<GLuint>(location);
    glBindVertexArray(vertexArray);
    glEnableVertexAttribArray(attribute);
    buffer.bind();
    glVertexAttribPointer(attribute, 2, GL_FLOAT, GL_FALSE, 0, nullptr);
    glDisable(GL_DEPTH_TEST); // every pixel is meant: testing and writing depth would be for nothing
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    glEnable(GL_DEPTH_TEST);
    glDisableVertexAttribArray(attribute);
    glBindVertexArray(0);
}
