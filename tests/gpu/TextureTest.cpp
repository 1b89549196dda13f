#include "gpu/Texture.h"

#include "testing/CapturedLog.h"
#include "testing/DataScratch.h"
#include "testing/GlFixture.h"

namespace {

/// Return what glGetTexLevelParameteriv says of the bound texture.
GLint level(int mip, GLenum what)
{
    GLint value = -1;
    glGetTexLevelParameteriv(GL_TEXTURE_2D, mip, what, &value);
    return value;
}

TEST_F(GlTest, ATextureShowsEachPictureReadIntoItOrAfterOneErrorNone)
{
    struct Row {
        int width, height, channels; ///< of the picture
        GLint textureWidth, textureHeight, format;
        int levels;
    };
    const Row rows[] = {
        {300, 200, 3, 512, 256, GL_RGB, 10},
        {2, 4, 4, 2, 4, GL_RGBA, 3},
        {3, 5, 1, 4, 8, GL_RGB, 4},
    };
    const DataScratch data;
    Texture texture;
    glActiveTexture(GL_TEXTURE5);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.width);
        const auto component = [&row](int x, int y, int i) { return 40 * (i + 1) + (row.width == 2) * (10 * y + x); };
        data.writeTga("picture.tga", row.width, row.height, row.channels, component);
        const GLuint old = texture.getHandle();
        texture.load("picture.tga");
        EXPECT_FALSE(glIsTexture(old));
        EXPECT_EQ(integer(GL_ACTIVE_TEXTURE), GL_TEXTURE5);
        EXPECT_EQ(integer(GL_TEXTURE_BINDING_2D), 0);

        texture.bind();
        EXPECT_EQ(level(0, GL_TEXTURE_WIDTH), row.textureWidth);
        ASSERT_EQ(level(0, GL_TEXTURE_HEIGHT), row.textureHeight);
        EXPECT_EQ(level(0, GL_TEXTURE_INTERNAL_FORMAT), row.format);
        EXPECT_EQ(level(row.levels - 1, GL_TEXTURE_WIDTH), 1) << "the mipmaps go down to one texel";
        EXPECT_EQ(level(row.levels, GL_TEXTURE_WIDTH), 0);
        const std::pair<GLenum, GLint> parameters[] = {
            {GL_TEXTURE_WRAP_S, GL_REPEAT},
            {GL_TEXTURE_WRAP_T, GL_REPEAT},
            {GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR},
        };
        for (const auto& [parameter, expected] : parameters) {
            GLint value = 0;
            glGetTexParameteriv(GL_TEXTURE_2D, parameter, &value);
            EXPECT_EQ(value, expected);
        }
        std::vector<glm::u8vec4> texels(static_cast<std::size_t>(row.textureWidth * row.textureHeight));
        glGetTexImage(GL_TEXTURE_2D, 0, GL_RGBA, GL_UNSIGNED_BYTE, texels.data());
        for (int i = 0; i < row.textureWidth * row.textureHeight; ++i) {
            glm::ivec4 expected(255);
            for (int c = 0; c < std::max(row.channels, 3); ++c)
                expected[c] = component(i % row.textureWidth, i / row.textureWidth, row.channels == 1 ? 0 : c);
            ASSERT_EQ(glm::ivec4(texels[static_cast<std::size_t>(i)]), expected) << "rows from the bottom up; " << i;
        }
    }
    data.write("garbage.tga", std::string(3000, '\x5a'));
    for (const std::string error : {"couldn't open file: absent.tga", "not a TGA picture: garbage.tga"}) {
        CapturedLog log;
        texture.load(error.substr(error.rfind(' ') + 1));
        EXPECT_EQ(log.text(), "ERROR | " + error + "\n");
        texture.bind();
        EXPECT_EQ(level(0, GL_TEXTURE_WIDTH), 0) << "no trace of the earlier picture";
    }
}

} // namespace
