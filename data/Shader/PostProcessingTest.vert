#version 430 core
layout(location = 0) in vec2 v_coord;

void main()
{
    gl_Position = vec4(v_coord, 0.0, 1.0);
}
