#version 430 core
in vec2 uv;
in float opacity;

uniform sampler2D smoke;

out vec4 fragment;

void main()
{
    vec4 puff = texture(smoke, uv);
    fragment = vec4(puff.rgb, puff.a * opacity);
}
