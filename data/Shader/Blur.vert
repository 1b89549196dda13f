#version 430 core
layout(location = 0) in vec2 v_coord;

uniform sampler2D light_depth_texture;

flat out float thickness; // of the haze, 0 to 1

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
    thickness = 0.2 + 0.5 * landDepth(); // haze gathers over low land
    gl_Position = vec4(v_coord, 0.0, 1.0);
}
