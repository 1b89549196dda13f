#include "render/FullScreenQuad.h"

#include "gpu/DrawCalls.h"
#include "gpu/Shaderprogram.h"

FullScreenQuad::FullScreenQuad()
{
    constexpr GLfloat kCorners[8] = {-1, -1, -1, 1, 1, -1, 1, 1};
    glGenBuffers(1, &buffer);
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glBufferData(GL_ARRAY_BUFFER, sizeof kCorners, kCorners, GL_STATIC_DRAW);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glGenVertexArrays(1, &vertexArray);
}

void FullScreenQuad::draw(Shaderprogram& program) const
{
    const GLint location = program.getAttribLocation("v_coord");
    if (location < 0 || !isReadyToDraw(GL_TRIANGLE_STRIP)) return;
    const GLuint attribute = static_cast<GLuint>(location);
    glBindVertexArray(vertexArray);
    glEnableVertexAttribArray(attribute);
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glVertexAttribPointer(attribute, 2, GL_FLOAT, GL_FALSE, 0, nullptr);
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    glDisableVertexAttribArray(attribute);
    glBindVertexArray(0);
}
