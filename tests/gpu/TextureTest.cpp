#include "gpu/Texture.h"

#include "testing/CapturedLog.h"
#include "testing/DataScratch.h"
#include "testing/GlFixture.h"

namespace {

class TextureTest : public GlTest {
protected:
    static GLint level(const Texture& texture, int mip, GLenum what)
    {
        texture.bind();
        GLint value = -1;
        glGetTexLevelParameteriv(GL_TEXTURE_2D, mip, what, &value);
        texture.unbind();
        return value;
    }

    static GLint parameter(const Texture& texture, GLenum what)
    {
        texture.bind();
        GLint value = -1;
        glGetTexParameteriv(GL_TEXTURE_2D, what, &value);
        texture.unbind();
        return value;
    }

    static std::vector<glm::u8vec4> texelsOf(const Texture& texture)
    {
        const int count = level(texture, 0, GL_TEXTURE_WIDTH) * level(texture, 0, GL_TEXTURE_HEIGHT);
        std::vector<glm::u8vec4> texels(static_cast<std::size_t>(count));
        texture.bind();
        glGetTexImage(GL_TEXTURE_2D, 0, GL_RGBA, GL_UNSIGNED_BYTE, texels.data());
        texture.unbind();
        return texels;
    }

    DataScratch data;
};

struct Picture {
    int width, height, channels;
    int textureWidth, textureHeight;
    GLint format;
    int levels;
};

TEST_F(TextureTest, SidesAreRaisedToPowersOfTwoAndTheChannelsDecideTheFormat)
{
    const Picture rows[] = {
        {300, 200, 3, 512, 256, GL_RGB, 10}, {256, 256, 4, 256, 256, GL_RGBA, 9}, {3, 5, 1, 4, 8, GL_RGB, 4}};
    for (const Picture& row : rows) {
        SCOPED_TRACE(row.width);
        data.writeTga("Textures/picture.tga", row.width, row.height, row.channels,
            [](int, int, int i) { return 40 * (i + 1); });
        Texture texture;
        texture.load("Textures/picture.tga");
        EXPECT_EQ(level(texture, 0, GL_TEXTURE_WIDTH), row.textureWidth);
        EXPECT_EQ(level(texture, 0, GL_TEXTURE_HEIGHT), row.textureHeight);
        EXPECT_EQ(level(texture, 0, GL_TEXTURE_INTERNAL_FORMAT), row.format);
        EXPECT_EQ(level(texture, row.levels - 1, GL_TEXTURE_WIDTH), 1) << "the mipmaps go down to one texel";
        EXPECT_EQ(level(texture, row.levels, GL_TEXTURE_WIDTH), 0);
        const glm::u8vec4 expected(40, row.channels == 1 ? 40 : 80, row.channels == 1 ? 40 : 120,
            row.channels == 4 ? 160 : 255);
        for (const glm::u8vec4& texel : texelsOf(texture)) ASSERT_EQ(texel, expected);
    }
}

TEST_F(TextureTest, RowsRunFromTheBottomUpAndSamplingRepeatsTrilinearly)
{
    data.writeTga("rows.tga", 2, 4, 3, [](int x, int y, int i) { return i == 0 ? 60 * y : i == 1 ? 200 * x : 7; });
    Texture texture;
    glActiveTexture(GL_TEXTURE5);
    texture.load("rows.tga");

    EXPECT_EQ(integer(GL_ACTIVE_TEXTURE), GL_TEXTURE5);
    EXPECT_EQ(integer(GL_TEXTURE_BINDING_2D), 0);
    const std::vector<glm::u8vec4> texels = texelsOf(texture);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 2; ++x)
            EXPECT_EQ(texels[static_cast<std::size_t>(2 * y + x)], glm::u8vec4(60 * y, 200 * x, 7, 255))
                << x << ", " << y;

    EXPECT_EQ(parameter(texture, GL_TEXTURE_WRAP_S), GL_REPEAT);
    EXPECT_EQ(parameter(texture, GL_TEXTURE_WRAP_T), GL_REPEAT);
    EXPECT_EQ(parameter(texture, GL_TEXTURE_MAG_FILTER), GL_LINEAR);
    EXPECT_EQ(parameter(texture, GL_TEXTURE_MIN_FILTER), GL_LINEAR_MIPMAP_LINEAR);
}

TEST_F(TextureTest, AReloadShowsTheNewPictureOrAfterOneErrorNoneAndDeletesTheOldObject)
{
    Texture texture;
    data.writeTga("picture.tga", 2, 2, 3, [](int, int, int) { return 10; });
    texture.load("picture.tga");
    const GLuint old = texture.getHandle();
    GLuint spare = 0; // takes the next name, so that the reload cannot get the old one back unnoticed
    glGenTextures(1, &spare);

    data.writeTga("picture.tga", 4, 4, 4, [](int, int, int) { return 90; });
    texture.load("picture.tga");
    EXPECT_EQ(texelsOf(texture), std::vector<glm::u8vec4>(16, glm::u8vec4(90)));
    EXPECT_TRUE(texture.getHandle() == old || !glIsTexture(old)) << "the replaced texture object must go";
    glDeleteTextures(1, &spare);

    data.write("garbage.tga", std::string(3000, '\x5a'));
    for (const std::string error : {"couldn't open file: absent.tga", "not a TGA picture: garbage.tga"}) {
        CapturedLog log;
        texture.load(error.substr(error.rfind(' ') + 1));
        EXPECT_EQ(log.text(), "ERROR | " + error + "\n");
        EXPECT_EQ(level(texture, 0, GL_TEXTURE_WIDTH), 0) << "no trace of the earlier picture";
    }
}

} // namespace
