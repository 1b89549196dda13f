VERTEX_SHADER Shader/TerrainFar.vert
FRAGMENT_SHADER Shader/TerrainShader.frag
FRAGMENT_SHADER Shader/TerrainSun.frag
