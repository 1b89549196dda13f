#version 430 core
// Ground too far away to be split: what the patches' stages make of a triangle at level 1, without their cost.
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;

uniform mat4 model;
uniform mat4 view;
uniform mat4 projection;
uniform mat4 depthVPMatrix;
uniform sampler2D tex_grass;
uniform sampler2D tex_dirt;

out vec3 worldPosition;
out vec3 worldNormal;
out vec3 shadowPosition;
flat out float dirtLevels;

void main()
{
    worldPosition = (model * vec4(position, 1.0)).xyz;
    worldNormal = normal;
    shadowPosition = (depthVPMatrix * vec4(worldPosition, 1.0)).xyz;
    dirtLevels = log2(float(textureSize(tex_dirt, 0).x) / float(textureSize(tex_grass, 0).x));
    gl_Position = projection * view * vec4(worldPosition, 1.0);
}
