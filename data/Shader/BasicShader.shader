VERTEX_SHADER Shader/BasicShader.vert
FRAGMENT_SHADER Shader/BasicShader.frag
