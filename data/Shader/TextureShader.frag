#version 430 core
in vec3 viewNormal;
in vec2 uv;

uniform sampler2D tex;

out vec4 fragment;

void main()
{
    fragment = vec4(texture(tex, uv).rgb * (0.35 + 0.65 * abs(normalize(viewNormal).z)), 1.0);
}
