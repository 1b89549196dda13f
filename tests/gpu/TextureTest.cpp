#include "gpu/Texture.h"

#include "testing/CapturedLog.h"
#include "testing/DataScratch.h"
#include "testing/GlFixture.h"

namespace {

/// Return what GL says of a level of the bound texture.
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
        glm::ivec2 size;             ///< of the texture
        GLint format;
        int levels;
        glm::u8vec4 colour; ///< of the second texel in the second row from below
    };
    const Row rows[] = {
        {300, 200, 4, {512, 256}, GL_RGBA, 10, {40, 80, 120, 160}},
        {2, 4, 3, {2, 4}, GL_RGB, 3, {51, 91, 131, 255}},
        {3, 5, 1, {4, 8}, GL_RGB, 4, {40, 40, 40, 255}},
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
        EXPECT_EQ(integer(GL_TEXTURE_BINDING_2D), 0);
        EXPECT_EQ(integer(GL_ACTIVE_TEXTURE), GL_TEXTURE5);

        texture.bind();
        ASSERT_EQ(glm::ivec2(level(0, GL_TEXTURE_WIDTH), level(0, GL_TEXTURE_HEIGHT)), row.size);
        EXPECT_EQ(level(0, GL_TEXTURE_INTERNAL_FORMAT), row.format);
        EXPECT_EQ(level(row.levels - 1, GL_TEXTURE_WIDTH), 1) << "the mipmaps go down to one texel";
        EXPECT_EQ(level(row.levels, GL_TEXTURE_WIDTH), 0);
        GLint wrap = 0, filter = 0;
        glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, &wrap);
        glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &filter);
        EXPECT_EQ(glm::ivec2(wrap, filter), glm::ivec2(GL_REPEAT, GL_LINEAR_MIPMAP_LINEAR));
        std::vector<glm::u8vec4> texels(static_cast<std::size_t>(row.size.x * row.size.y));
        glGetTexImage(GL_TEXTURE_2D, 0, GL_RGBA, GL_UNSIGNED_BYTE, texels.data());
        EXPECT_EQ(texels[static_cast<std::size_t>(row.size.x) + 1], row.colour);
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
