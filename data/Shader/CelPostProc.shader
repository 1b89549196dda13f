VERTEX_SHADER Shader/CelPostProc.vert
FRAGMENT_SHADER Shader/CelPostProc.frag
