VERTEX_SHADER Shader/ColorShader.vert
FRAGMENT_SHADER Shader/ColorShader.frag
