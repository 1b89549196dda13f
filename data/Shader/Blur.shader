VERTEX_SHADER Shader/Blur.vert
FRAGMENT_SHADER Shader/Blur.frag
