#version 430 core
// One step of the exhaust smoke, by transform feedback: rises, drifts, slows, and starts anew at the emitter when its
// time is over.
layout(location = 0) in vec3 position;
layout(location = 1) in float ttl; // seconds of game time left
layout(location = 2) in vec3 velocity;

uniform float Time; // seconds of game time since the last step
uniform vec3 emitter_pos;

out vec3 vPosition;
out float vTtl;
out vec3 vVelocity;

const float kLifetime = 2.4; // seconds of game time
const float kBuoyancy = 1.2; // world units a second squared
const float kDrag = 1.1;     // part of the velocity lost a second

float hash(float n)
{
    return fract(sin(n * 12.9898) * 43758.5453);
}

void main()
{
    float left = ttl - Time;
    if (left > 0.0) {
        vVelocity = velocity * max(0.0, 1.0 - kDrag * Time) + vec3(0.0, kBuoyancy * Time, 0.0);
        vPosition = position + vVelocity * Time;
        vTtl = left;
        return;
    }
    float seed = float(gl_VertexID) + fract(dot(emitter_pos, vec3(0.37, 0.71, 0.53))) * 17.0;
    vec3 random = vec3(hash(seed), hash(seed + 1.7), hash(seed + 3.1));
    vPosition = emitter_pos + vec3(0.6, 0.3, 0.6) * (random - 0.5) - vec3(0.0, 0.5, 0.0);
    vVelocity = vec3(1.6, 0.8, 1.6) * (random.zxy - 0.5) + vec3(0.0, 0.5, 0.0);
    vTtl = kLifetime * (0.15 + 0.85 * hash(seed + 5.3)); // staggered, so that puffs follow one another
}
