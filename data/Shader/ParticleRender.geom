#version 430 core
// Makes each point a square that faces the eye. Its size is in world units, so that puffs look alike in every viewport,
// and grows with age.
layout(points) in;
layout(triangle_strip, max_vertices = 4) out;

in float age[];
in float turn[];

uniform mat4 projection;

out vec2 uv;
out float opacity;

void main()
{
    float size = mix(0.10, 0.36, age[0]); // world units, half an edge
    opacity = 0.75 * (1.0 - age[0]) * (1.0 - age[0]);
    if (opacity < 0.02) return; // too faint to be seen, yet its pixels would cost as much
    vec2 right = size * vec2(cos(turn[0]), sin(turn[0])), up = vec2(-right.y, right.x);
    vec2 corners[4] = vec2[](-right - up, -right + up, right - up, right + up); // clockwise: the side that is drawn
    vec2 coordinates[4] = vec2[](vec2(0, 0), vec2(0, 1), vec2(1, 0), vec2(1, 1));
    for (int i = 0; i < 4; ++i) {
        uv = coordinates[i];
        gl_Position = projection * (gl_in[0].gl_Position + vec4(corners[i], 0.0, 0.0));
        EmitVertex();
    }
    EndPrimitive();
}
