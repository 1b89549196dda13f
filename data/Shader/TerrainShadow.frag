#version 430 core
// Ground where a shadow may fall.
in vec3 shadowPosition;

uniform sampler2D shadow_texture;

const float kShadowBias = 0.0015; // of the light's depth range: 0.3 world units

// Return how much light gets here, 0 to 1. The four nearest texels count by their closeness, so that edges run softly
// from texel to texel.
float lit()
{
    vec2 size = vec2(textureSize(shadow_texture, 0));
    vec2 at = shadowPosition.xy * size - 0.5;
    vec2 texel = floor(at);
    vec2 part = at - texel;
    // Counter-clockwise from the upper left; asked for at their common corner, where rounding picks no others.
    vec4 isLit = step(shadowPosition.z - kShadowBias, textureGather(shadow_texture, (texel + 1.0) / size));
    vec2 rows = mix(isLit.wx, isLit.zy, part.x);
    return mix(rows.x, rows.y, part.y);
}
