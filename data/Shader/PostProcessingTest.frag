#version 430 core
// The plainest post-processing pass: the picture as it is, darker towards the corners.
uniform sampler2D fbo_texture;
uniform vec3 window; // width and height in pixels

out vec4 fragment;

void main()
{
    vec2 fromCentre = gl_FragCoord.xy / max(window.xy, vec2(1.0)) - 0.5;
    vec3 colour = texelFetch(fbo_texture, ivec2(gl_FragCoord.xy), 0).rgb;
    fragment = vec4(colour * (1.0 - 0.8 * dot(fromCentre, fromCentre)), 1.0);
}
