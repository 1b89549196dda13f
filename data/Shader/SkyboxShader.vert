#version 430 core
layout(location = 0) in vec3 position;
layout(location = 1) in vec2 texcoord;

uniform mat4 view;
uniform mat4 projection;

out vec2 uv;

void main()
{
    uv = texcoord;
    vec4 clip = projection * vec4(mat3(view) * position, 1.0); // the sky stays around the eye
    gl_Position = vec4(clip.xy, clip.w * 0.999999, clip.w);    // behind everything, short of the cleared depth
}
