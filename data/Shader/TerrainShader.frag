#version 430 core
in vec3 worldPosition;
in vec3 worldNormal;
in vec3 shadowPosition;

uniform sampler2D tex_grass;
uniform sampler2D tex_dirt;
uniform sampler2D shadow_texture;

out vec4 fragment;

const float kTilesPerUnit = 0.05;  // texture repeats a world unit
const float kShadowBias = 0.0015;  // of the light's depth range: 0.3 world units
const vec3 kToLight = vec3(0.2873479, 0.9578263, 0.0);

void main()
{
    vec2 uv = worldPosition.xz * kTilesPerUnit;
    vec3 grass = texture(tex_grass, uv).rgb;
    vec3 dirt = texture(tex_dirt, uv).rgb;

    // Dirt where it is steep, and on low ground.
    float steep = smoothstep(0.90, 0.965, worldNormal.y);
    float high = smoothstep(20.0, 30.0, worldPosition.y);
    vec3 ground = mix(dirt, grass, steep * high);

    float light = dot(worldNormal, kToLight);
    ivec2 texel = ivec2(shadowPosition.xy * vec2(textureSize(shadow_texture, 0)));
    float lit = texelFetch(shadow_texture, texel, 0).r < shadowPosition.z - kShadowBias ? 0.0 : 1.0;
    float band = 0.62 + lit * (0.22 + 0.16 * smoothstep(0.86, 0.90, light));
    fragment = vec4(ground * mix(vec3(0.82, 0.86, 1.08), vec3(1.0), lit) * band, 1.0);
}
