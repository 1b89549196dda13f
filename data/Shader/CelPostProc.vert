#version 430 core
layout(location = 0) in vec2 v_coord;

uniform vec3 window; // width and height in pixels

// Where the pixel is, in pixels from the lower left corner: gl_FragCoord and uniforms are dear to a software driver.
noperspective out vec2 pixel;
flat out vec2 last;

void main()
{
    pixel = (0.5 * v_coord + 0.5) * window.xy;
    last = window.xy - 1.0;
    gl_Position = vec4(v_coord, 0.0, 1.0);
}
