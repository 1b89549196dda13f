#version 430 core
layout(location = 0) in vec2 position;
layout(location = 1) in vec2 texcoord;

out vec2 uv;

void main()
{
    uv = texcoord;
    gl_Position = vec4(position, -0.9999, 1.0); // in front of everything, and near: neither blurred nor hazed
}
