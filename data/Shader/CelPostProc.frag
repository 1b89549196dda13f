#version 430 core
// Draws the edges that the pass before found in ink, one pixel wide with a soft rim.
noperspective in vec2 pixel;
flat in vec2 last; // the upper right pixel

uniform sampler2D fbo_texture;

out vec4 fragment;

const vec3 kInk = vec3(0.07, 0.06, 0.10);
const float kInkStrength = 0.85;

void main()
{
    ivec2 p = ivec2(pixel);
    ivec2 low = max(p - 1, ivec2(0)), high = min(p + 1, ivec2(last));
    vec4 c = texelFetch(fbo_texture, p, 0);
    float around = texelFetch(fbo_texture, ivec2(low.x, p.y), 0).a + texelFetch(fbo_texture, ivec2(high.x, p.y), 0).a
                 + texelFetch(fbo_texture, ivec2(p.x, low.y), 0).a + texelFetch(fbo_texture, ivec2(p.x, high.y), 0).a;
    float ink = clamp(0.6 * c.a + 0.2 * around, 0.0, 1.0);
    fragment = vec4(mix(c.rgb, kInk, kInkStrength * ink), 1.0);
}
