#version 430 core
// A solid lit from the eye, without colour or texture: for looking at forms.
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;

uniform mat4 model;
uniform mat4 view;
uniform mat4 projection;
uniform mat3 normalMatrix;

out vec3 viewNormal;

void main()
{
    viewNormal = normalMatrix * (mat3(model) * normal);
    gl_Position = projection * view * model * vec4(position, 1.0);
}
