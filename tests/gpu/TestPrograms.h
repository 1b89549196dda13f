#pragma once

#include "gpu/Shader.h"
#include "gpu/Shaderprogram.h"
#include "gpu/VertexAttributeList.h"
#include "gpu/VertexBuffer.h"

#include <memory>
#include <string>
#include <vector>

/// One stage of a program for a test; the version line is added.
struct Stage {
    GLenum type;
    std::string body;
};

inline void build(Shaderprogram& program, const std::vector<Stage>& stages)
{
    for (const Stage& stage : stages) {
        Shader shader(stage.type, "#version 430 core\n" + stage.body);
        program.attachShader(&shader);
    }
    program.link();
}

inline std::unique_ptr<Shaderprogram> makeProgram(const std::vector<Stage>& stages)
{
    auto program = std::make_unique<Shaderprogram>();
    build(*program, stages);
    return program;
}

/// Places the attribute "position" as it is.
inline const Stage kPlainVertex{GL_VERTEX_SHADER, "in vec3 position; void main() { gl_Position = vec4(position, 1.0); }"};

/// Paints white.
inline const Stage kWhiteFragment{GL_FRAGMENT_SHADER, "out vec4 colour; void main() { colour = vec4(1.0); }"};

inline const Stage kGarbage{GL_FRAGMENT_SHADER, "\x7f\x01\x02 this is no shader"};

inline VertexAttributeList positionLayout()
{
    VertexAttributeList layout;
    layout.addAttribute({ATTRIBUTE_VEC3, "position"});
    return layout;
}

/// Vertices of a position each, three floats, uploaded.
struct Positions {
    explicit Positions(const std::vector<float>& floats) : vertices(&layout, static_cast<unsigned>(floats.size() / 3))
    {
        vertices.setAttributeData("position", floats.data());
        vertices.upload(GL_STATIC_DRAW);
    }

    const VertexAttributeList layout = positionLayout();
    VertexBuffer vertices;
};
