#version 430 core
// Depth blur: what is far grows soft and hazy, the playfield stays sharp. The alpha of the result says how much of an
// edge a pixel is: the pass that follows inks the edges.
uniform sampler2D fbo_texture;
uniform sampler2D depth_texture;
uniform sampler2D light_depth_texture;
uniform float offset;

out vec4 fragment;

const float kNear = 0.1;        // the projection's, world units
const float kBlurStart = 120.0; // world units from the eye
const float kBlurFull = 320.0;
const float kEdgeFrom = 0.10;   // bend of the reciprocal depth, relative to itself
const float kEdgeFull = 0.28;
const vec3 kHaze = vec3(0.72, 0.85, 0.95);

void main()
{
    ivec2 p = ivec2(gl_FragCoord.xy);
    ivec2 last = textureSize(fbo_texture, 0) - 1;
    ivec2 l = ivec2(max(p.x - 1, 0), p.y), r = ivec2(min(p.x + 1, last.x), p.y);
    ivec2 d = ivec2(p.x, max(p.y - 1, 0)), u = ivec2(p.x, min(p.y + 1, last.y));

    // One minus the stored depth is proportional to the reciprocal distance, which is linear across any plane: only
    // real edges bend it.
    float c = 1.0 - texelFetch(depth_texture, p, 0).r;
    float bend = abs(2.0 - texelFetch(depth_texture, l, 0).r - texelFetch(depth_texture, r, 0).r - 2.0 * c)
               + abs(2.0 - texelFetch(depth_texture, d, 0).r - texelFetch(depth_texture, u, 0).r - 2.0 * c);
    float reciprocal = max(c, 1.0e-7);
    float edge = smoothstep(kEdgeFrom, kEdgeFull, bend / reciprocal);

    float distance = kNear / reciprocal;
    float far = smoothstep(kBlurStart, kBlurFull, distance);
    vec3 sharp = texelFetch(fbo_texture, p, 0).rgb;
    vec3 soft = 0.25 * (texelFetch(fbo_texture, l, 0).rgb + texelFetch(fbo_texture, r, 0).rgb
                      + texelFetch(fbo_texture, d, 0).rgb + texelFetch(fbo_texture, u, 0).rgb);
    float haze = distance > 990.0 ? 0.0 : 0.35 * far; // the sky brings its own
    fragment = vec4(mix(mix(sharp, soft, 0.8 * far), kHaze, haze), edge * (1.0 - 0.8 * far));
}
