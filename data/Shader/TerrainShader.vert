#version 430 core
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;

uniform mat4 model;

out vec3 controlPosition; // world
out vec3 controlNormal;

void main()
{
    controlPosition = (model * vec4(position, 1.0)).xyz;
    controlNormal = normal;
}
