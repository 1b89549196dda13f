#version 430 core
// A textured solid, lit from the eye.
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
layout(location = 2) in vec2 texcoord;

uniform mat4 model;
uniform mat4 view;
uniform mat4 projection;
uniform mat3 normalMatrix;

out vec3 viewNormal;
out vec2 uv;

void main()
{
    viewNormal = normalMatrix * (mat3(model) * normal);
    uv = texcoord;
    gl_Position = projection * view * model * vec4(position, 1.0);
}
