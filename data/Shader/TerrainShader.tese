#version 430 core
// Patches stay flat, as the ground is for the wheels; splitting them near the eye bends the normals between the corners
// smoothly.
layout(triangles, equal_spacing, ccw) in;

in vec3 patchPosition[];
in vec3 patchNormal[];

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
    vec3 w = gl_TessCoord;
    worldPosition = w.x * patchPosition[0] + w.y * patchPosition[1] + w.z * patchPosition[2];
    worldNormal = normalize(w.x * patchNormal[0] + w.y * patchNormal[1] + w.z * patchNormal[2]);
    shadowPosition = (depthVPMatrix * vec4(worldPosition, 1.0)).xyz;
    dirtLevels = log2(float(textureSize(tex_dirt, 0).x) / float(textureSize(tex_grass, 0).x));
    gl_Position = projection * view * vec4(worldPosition, 1.0);
}
