#version 430 core
in vec3 local;
in vec3 eyePosition;

out vec4 fragment;

const float kHubRadius = 0.24;  // world units; a tyre has 0.45
const float kSideHeight = 0.17; // from here on outwards it is the side of the wheel, not its tread

void main()
{
    vec3 n = normalize(cross(dFdx(eyePosition), dFdy(eyePosition)));
    float facing = 0.55 + 0.45 * abs(n.y);
    float radius = length(local.xz);
    vec3 tread = fract(atan(local.z, local.x) * 2.546) < 0.5 ? vec3(0.16) : vec3(0.23); // sixteen lugs around
    vec3 side = radius < kHubRadius ? vec3(0.86, 0.84, 0.78) : radius < 0.30 ? vec3(0.12) : vec3(0.20);
    fragment = vec4((abs(local.y) > kSideHeight ? side : tread) * facing, 0.85);
}
