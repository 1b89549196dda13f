#version 430 core
in vec2 uv;

uniform sampler2D tex;

out vec4 fragment;

void main()
{
    fragment = vec4(textureLod(tex, uv, 0.0).rgb, 1.0); // one level: the cells must not run into one another
}
