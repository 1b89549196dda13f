#include "RenderFixture.h"

#include "render/TextRenderer.h"

#include <GL/glew.h>

namespace {

constexpr int kGlyphWidth = 32, kGlyphHeight = 24; // pixels in the window

TEST_F(RenderTest, TextTakesItsCellsByTheTruncatingRule)
{
    struct Row {
        char character;
        float u, v;
    };
    const Row rows[] = {{'!', 0, 0}, {'1', 0, 0.0625f}, {'~', 0.8125f, 0.3125f}, {' ', 0, 0.375f},
        {'\t', -0.5f, -0.0625f}, {'\xE4', -0.8125f, -0.1875f}};
    for (const Row& row : rows) {
        TextRenderer text;
        text.addText(std::string(1, row.character), 0, 0);
        EXPECT_FLOAT_EQ(text.getQueue()[0].u, row.u) << static_cast<int>(row.character);
        EXPECT_FLOAT_EQ(text.getQueue()[0].v, row.v) << static_cast<int>(row.character);
    }
}

class TextPicture : public RenderTest {
protected:
    TextPicture()
    {
        glBindFramebuffer(GL_FRAMEBUFFER, 0);
        glViewport(0, 0, 1024, 768);
        glScissor(0, 0, 1024, 768);
        text.setShader(Library::getInstance()->getShaderprogram("TextShader"));
        text.setFont(Library::getInstance()->getTexture("Font"));
    }

    /// Pixels that a render() paints inside this rectangle of a black window.
    int painted(int x, int y, int width, int height)
    {
        glClearColor(0, 0, 0, 1);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        text.render();
        std::vector<glm::u8vec4> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
        glReadPixels(x, y, width, height, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
        int count = 0;
        for (const glm::u8vec4& pixel : pixels) count += pixel.r || pixel.g || pixel.b;
        return count;
    }

    TextRenderer text;
};

TEST_F(TextPicture, PaintsUprightGlyphsWhereTheyWereAskedFor)
{
    text.addText("T L", -0.5, 0.25); // pixels (256, 480)
    const int all = painted(0, 0, 1024, 768);
    const auto glyph = [this](int i) { return painted(256 + i * kGlyphWidth, 480, kGlyphWidth, kGlyphHeight); };
    EXPECT_GT(glyph(0), 30);
    EXPECT_EQ(glyph(1), 0) << "a space";
    EXPECT_GT(glyph(2), 30);
    EXPECT_EQ(glyph(0) + glyph(2), all);
    const int half = kGlyphHeight / 2;
    EXPECT_GT(painted(256, 480 + half, kGlyphWidth, half), painted(256, 480, kGlyphWidth, half))
        << "a T is heavier at its top";
    EXPECT_GT(painted(320, 480, kGlyphWidth, half), painted(320, 480 + half, kGlyphWidth, half)) << "an L at its foot";
}

} // namespace
