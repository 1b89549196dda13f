#version 430 core
// Cel-shaded solids, drawn twice: first the faces that look away, pushed outwards as a dark hull (backface 1), then the
// solid itself (backface 0).
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;

uniform mat4 model;
uniform mat4 view;
uniform mat4 projection;
uniform mat3 normalMatrix;
uniform mat4 depthVPMatrix;
uniform float backface;

out vec3 viewNormal;
out vec3 eyePosition;
out vec3 viewLight;
out vec3 shadowPosition;

// World units of outline a unit of distance: about two and a half pixels in a full window.
const float kOutlinePerDistance = 0.0032;
const vec3 kToLight = vec3(0.2873479, 0.9578263, 0.0);

void main()
{
    vec4 world = model * vec4(position, 1.0);
    viewNormal = normalize(normalMatrix * (mat3(model) * normal));
    viewLight = normalMatrix * kToLight;
    shadowPosition = (depthVPMatrix * world).xyz;

    vec4 eye = view * world;
    eye.xyz += viewNormal * (backface * kOutlinePerDistance * clamp(-eye.z, 3.0, 60.0));
    eyePosition = eye.xyz;
    gl_Position = projection * eye;
}
