VERTEX_SHADER Shader/ShadowDepth.vert
FRAGMENT_SHADER Shader/ShadowDepth.frag
