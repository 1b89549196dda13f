#version 430 core
in vec2 uv;

uniform sampler2D tex;

out vec4 fragment;

void main()
{
    vec4 glyph = textureLod(tex, uv, 0.0);
    if (glyph.a < 0.5) discard;
    fragment = vec4(glyph.rgb, 1.0);
}
