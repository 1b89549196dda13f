#version 430 core
// Depth blur: what is far grows soft and hazy, the playfield stays sharp. The alpha of the result says how much of an
// edge a pixel is: the pass that follows inks the edges.
//
// Pixels are shaded in squares of two by two. Of its four neighbours a pixel reads the two outside its square; the two
// inside have read their own texels, and derivatives tell them for nothing.
#extension GL_ARB_derivative_control : enable
#ifndef GL_ARB_derivative_control
#define dFdxFine dFdx
#define dFdyFine dFdy
#endif

noperspective in vec2 pixel;
flat in vec2 size;
flat in vec2 haze; // thickness, drift

uniform sampler2D fbo_texture;
uniform sampler2D depth_texture;

out vec4 fragment;

const float kNear = 0.1;        // the projection's, world units
const float kBlurStart = 120.0; // world units from the eye
const float kBlurFull = 320.0;
const float kEdgeFrom = 0.10;   // bend of the reciprocal depth, relative to itself
const float kEdgeFull = 0.28;
const vec3 kHaze = vec3(0.72, 0.85, 0.95);

// As smoothstep(), but multiplies where a software driver would divide for each pixel.
float ramp(float from, float full, float x)
{
    float t = clamp((x - from) * (1.0 / (full - from)), 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

// Return the haze's share at that distance. It drifts in banks, a tenth thicker and thinner.
float hazeAt(float distance, float far)
{
    float bank = abs(fract(0.002 * (pixel.x + distance) + haze.y) - 0.5);
    return distance > 990.0 ? 0.0 : haze.x * far * (0.9 + 0.4 * bank); // the sky brings its own
}

void main()
{
    vec2 own = floor(pixel);
    vec2 outside = 4.0 * fract(0.5 * own) - 1.0; // direction out of the square, -1 or 1 an axis
    ivec2 p = ivec2(own);
    ivec2 o = ivec2(clamp(own + outside, vec2(0.0), size - 1.0));

    // The four depths around the pixel's outer corner, counter-clockwise from the upper left; mirrored so that the
    // pixel's own comes second, with its neighbours along x and y to either side.
    vec4 around = textureGather(depth_texture, (own + 0.5 + 0.5 * outside) * (1.0 / size));
    around = outside.y < 0.0 ? around : around.wzyx;
    around = outside.x < 0.0 ? around : around.yxwz;
    float depth = around.y;

    // One minus the stored depth is proportional to the reciprocal distance, which is linear across any plane: only
    // real edges bend it.
    float bend = abs(around.x - depth - outside.x * dFdxFine(depth))
               + abs(around.z - depth - outside.y * dFdyFine(depth));
    float nearness = 1.0 / max(1.0 - depth, 1.0e-7);
    float edge = ramp(kEdgeFrom, kEdgeFull, bend * nearness);

    float distance = kNear * nearness;
    float far = ramp(kBlurStart, kBlurFull, distance);
    vec3 sharp = texelFetch(fbo_texture, p, 0).rgb;
    vec3 soft = 0.5 * sharp + 0.25 * (texelFetch(fbo_texture, ivec2(o.x, p.y), 0).rgb - outside.x * dFdxFine(sharp)
                                    + texelFetch(fbo_texture, ivec2(p.x, o.y), 0).rgb - outside.y * dFdyFine(sharp));
    fragment = vec4(mix(mix(sharp, soft, 0.8 * far), kHaze, hazeAt(distance, far)), edge * (1.0 - 0.8 * far));
}
