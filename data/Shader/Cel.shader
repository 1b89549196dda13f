VERTEX_SHADER Shader/Cel.vert
FRAGMENT_SHADER Shader/Cel.frag
