#version 430 core
// Depth as the light sees it. Every program of the scene keeps `position` at location 0: this one draws with their
// vertex arrays.
layout(location = 0) in vec3 position;

uniform mat4 mvp;

void main()
{
    gl_Position = mvp * vec4(position, 1.0);
}
