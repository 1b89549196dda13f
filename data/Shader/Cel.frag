#version 430 core
in vec3 viewNormal;
in vec3 eyePosition;
in vec3 viewLight;
in vec3 shadowPosition;

uniform vec4 color;
uniform float backface;
uniform sampler2D shadow_texture;

out vec4 fragment;

// Of the light's depth range: 0.7 world units, so that small solids do not shade themselves.
const float kShadowBias = 0.0035;
// Cosine of the angle between normal and face beyond which the face's own normal is used: smoothing never bends a
// normal so far, but a hat's normals lie that far off.
const float kAstray = 0.4;
const vec3 kInk = vec3(0.07, 0.06, 0.10);

void main()
{
    if (backface > 0.5) {
        fragment = vec4(kInk, 1.0);
        return;
    }
    vec3 n = normalize(viewNormal);
    vec3 face = normalize(cross(dFdx(eyePosition), dFdy(eyePosition)));
    if (dot(n, face) < kAstray) n = face;
    float light = dot(n, viewLight);
    ivec2 texel = ivec2(shadowPosition.xy * vec2(textureSize(shadow_texture, 0)));
    if (texelFetch(shadow_texture, texel, 0).r < shadowPosition.z - kShadowBias) light = min(light, 0.1);

    float band = light > 0.62 ? 1.0 : light > 0.18 ? 0.80 : 0.58;
    vec3 shade = color.rgb * mix(vec3(0.80, 0.82, 1.05), vec3(1.0), band) * band; // shadows lean to blue
    vec3 halfway = normalize(viewLight + vec3(0.0, 0.0, 1.0));
    if (dot(n, halfway) > 0.965 && light > 0.3) shade = mix(shade, vec3(1.0), 0.55);
    fragment = vec4(shade, 1.0);
}
