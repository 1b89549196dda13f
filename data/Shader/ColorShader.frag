#version 430 core
uniform vec4 color;

out vec4 fragment;

void main()
{
    fragment = color;
}
