#version 430 core
layout(location = 0) in vec2 v_coord;

uniform sampler2D fbo_texture;
uniform sampler2D light_depth_texture;
uniform float offset; // half seconds

// Where the pixel is, in pixels from the lower left corner: gl_FragCoord and uniforms are dear to a software driver.
noperspective out vec2 pixel;
flat out vec2 size; // of the window in pixels
flat out vec2 haze; // thickness 0 to 1, and how far its banks have drifted

// Return how deep the land lies in the light's range, 0 to 1: the mean of four places halfway out from its middle. Read
// here, four corners pay for it, not each pixel.
float landDepth()
{
    float depth = 0.0;
    for (int i = 0; i < 4; ++i)
        depth += 0.25 * textureLod(light_depth_texture, vec2(i & 1, i >> 1) * 0.5 + 0.25, 0.0).r;
    return depth;
}

void main()
{
    size = vec2(textureSize(fbo_texture, 0));
    pixel = (0.5 * v_coord + 0.5) * size;
    haze = vec2(0.2 + 0.5 * landDepth(), 0.01 * offset); // haze gathers over low land
    gl_Position = vec4(v_coord, 0.0, 1.0);
}
