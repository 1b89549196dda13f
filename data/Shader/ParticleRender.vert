#version 430 core
layout(location = 0) in vec3 position;
layout(location = 1) in float ttl;
layout(location = 2) in vec3 velocity;

uniform mat4 view;
uniform mat4 model;

out float age; // 0 new, 1 gone
out float turn;

const float kLifetime = 2.4; // seconds of game time, as the movement has it

void main()
{
    age = clamp(1.0 - ttl / kLifetime, 0.0, 1.0);
    turn = 2.0 * (velocity.x + velocity.z) + 3.0 * age;
    gl_Position = view * model * vec4(position, 1.0);
}
