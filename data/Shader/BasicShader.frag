#version 430 core
in vec3 viewNormal;

out vec4 fragment;

void main()
{
    fragment = vec4(vec3(0.25 + 0.75 * abs(normalize(viewNormal).z)), 1.0);
}
