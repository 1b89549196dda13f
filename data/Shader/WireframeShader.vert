#version 430 core
// Rubber: tyres, and in the debug view the markers. The form is read from the position alone.
layout(location = 0) in vec3 position;

uniform mat4 model;
uniform mat4 view;
uniform mat4 projection;

out vec3 local;
out vec3 eyePosition;

void main()
{
    local = position;
    vec4 eye = view * model * vec4(position, 1.0);
    eyePosition = eye.xyz;
    gl_Position = projection * eye;
}
