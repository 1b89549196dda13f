#version 430 core
in vec3 viewNormal;

uniform vec4 color;
uniform mat3 normalMatrix;

out vec4 fragment;

const vec3 kToLight = vec3(0.2873479, 0.9578263, 0.0);

void main()
{
    float light = max(dot(normalize(viewNormal), normalMatrix * kToLight), 0.0);
    fragment = vec4(color.rgb * (0.4 + 0.6 * light), 1.0);
}
