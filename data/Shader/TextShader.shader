VERTEX_SHADER Shader/TextShader.vert
FRAGMENT_SHADER Shader/TextShader.frag
