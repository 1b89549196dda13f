#version 430 core
// Chooses how finely a patch is split, and drops the patches that lie outside the view altogether.
layout(vertices = 3) out;

in vec3 controlPosition[];
in vec3 controlNormal[];

uniform mat4 view;
uniform mat4 projection;
uniform float fineDistance; // world units from the eye within which an edge is split

out vec3 patchPosition[];
out vec3 patchNormal[];

const float kFineLevel = 3.0;

// Return whether the triangle lies beyond one side of the view with all its corners.
bool outside(vec4 a, vec4 b, vec4 c)
{
    for (int axis = 0; axis < 3; ++axis) {
        if (a[axis] > a.w && b[axis] > b.w && c[axis] > c.w) return true;
        if (a[axis] < -a.w && b[axis] < -b.w && c[axis] < -c.w) return true;
    }
    return false;
}

// Return how finely an edge is split. It depends on the edge's middle alone: the two patches that share the edge agree,
// and no cracks open.
float edgeLevel(vec3 p, vec3 q, vec3 eye)
{
    return distance(0.5 * (p + q), eye) < fineDistance ? kFineLevel : 1.0;
}

void main()
{
    patchPosition[gl_InvocationID] = controlPosition[gl_InvocationID];
    patchNormal[gl_InvocationID] = controlNormal[gl_InvocationID];
    if (gl_InvocationID != 0) return;

    vec3 p0 = controlPosition[0], p1 = controlPosition[1], p2 = controlPosition[2];
    mat4 toClip = projection * view;
    if (outside(toClip * vec4(p0, 1.0), toClip * vec4(p1, 1.0), toClip * vec4(p2, 1.0))) {
        gl_TessLevelOuter[0] = gl_TessLevelOuter[1] = gl_TessLevelOuter[2] = 0.0;
        gl_TessLevelInner[0] = 0.0;
        return;
    }
    vec3 eye = -(transpose(mat3(view)) * view[3].xyz);
    float e0 = edgeLevel(p1, p2, eye), e1 = edgeLevel(p2, p0, eye), e2 = edgeLevel(p0, p1, eye);
    gl_TessLevelOuter[0] = e0;
    gl_TessLevelOuter[1] = e1;
    gl_TessLevelOuter[2] = e2;
    gl_TessLevelInner[0] = max(e0, max(e1, e2));
}
