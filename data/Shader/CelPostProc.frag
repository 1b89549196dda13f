#version 430 core
// Draws the edges that the pass before found in ink, one pixel wide with a soft rim.
uniform sampler2D fbo_texture;
uniform vec3 window; // width and height in pixels

out vec4 fragment;

const vec3 kInk = vec3(0.07, 0.06, 0.10);
const float kInkStrength = 0.85;

void main()
{
    ivec2 p = ivec2(gl_FragCoord.xy);
    ivec2 last = ivec2(window.xy) - 1;
    vec4 c = texelFetch(fbo_texture, p, 0);
    float around = texelFetch(fbo_texture, ivec2(max(p.x - 1, 0), p.y), 0).a
                 + texelFetch(fbo_texture, ivec2(min(p.x + 1, last.x), p.y), 0).a
                 + texelFetch(fbo_texture, ivec2(p.x, max(p.y - 1, 0)), 0).a
                 + texelFetch(fbo_texture, ivec2(p.x, min(p.y + 1, last.y)), 0).a;
    float ink = clamp(0.6 * c.a + 0.2 * around, 0.0, 1.0);
    fragment = vec4(mix(c.rgb, kInk, kInkStrength * ink), 1.0);
}
