#include "RenderFixture.h"

#include "render/TextRenderer.h"

#include <GL/glew.h>

namespace {

constexpr float kGlyph = 0.0625f;
constexpr int kGlyphWidth = 32, kGlyphHeight = 24; // pixels in the window

TEST_F(RenderTest, TextQueuesSixVerticesACharacter)
{
    TextRenderer text;
    text.addText("AB", 0, 0);
    const auto& queue = text.getQueue();
    ASSERT_EQ(queue.size(), 12u);
    const float expected[6][2] = {{kGlyph, kGlyph}, {2 * kGlyph, 0}, {kGlyph, 0}, {kGlyph, kGlyph}, {2 * kGlyph, kGlyph}, {2 * kGlyph, 0}};
    for (std::size_t i = 0; i < 6; ++i) { // of the B: cell 33
        EXPECT_FLOAT_EQ(queue[6 + i].x, expected[i][0]) << i;
        EXPECT_FLOAT_EQ(queue[6 + i].y, expected[i][1]) << i;
        EXPECT_FLOAT_EQ(queue[6 + i].u, expected[i][0]) << i;
        EXPECT_FLOAT_EQ(queue[6 + i].v, 3 * kGlyph - expected[i][1]) << "a glyph's top edge takes the smaller v, vertex " << i;
    }
    text.addText("", 0, 0);
    EXPECT_EQ(queue.size(), 12u);
    text.addText("C", -1, 0.5);
    EXPECT_EQ(queue.size(), 18u);
    EXPECT_FLOAT_EQ(queue[14].x, -1);
    EXPECT_FLOAT_EQ(queue[14].y, 0.5f);
    text.clear();
    EXPECT_TRUE(queue.empty());
}

struct Cell {
    char character;
    float u, v;
};

class TextCell : public RenderTest, public testing::WithParamInterface<Cell> {};

TEST_P(TextCell, LiesWhereTheTruncatingRuleSays)
{
    TextRenderer text;
    text.addText(std::string(1, GetParam().character), 0, 0);
    EXPECT_FLOAT_EQ(text.getQueue()[0].u, GetParam().u);
    EXPECT_FLOAT_EQ(text.getQueue()[0].v, GetParam().v);
}

INSTANTIATE_TEST_SUITE_P(Characters, TextCell,
    testing::Values(Cell{'!', 0, 0}, Cell{'0', 0.9375f, 0}, Cell{'1', 0, 0.0625f}, Cell{'~', 0.8125f, 0.3125f}, Cell{' ', 0, 0.375f},
        Cell{'\t', -0.5f, -0.0625f}, Cell{'\n', -0.4375f, -0.0625f}, Cell{'\x80', -0.0625f, -0.625f}, Cell{'\xE4', -0.8125f, -0.1875f},
        Cell{'\xFF', -0.125f, -0.125f}));

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
    const int first = painted(256, 480, kGlyphWidth, kGlyphHeight), second = painted(256 + kGlyphWidth, 480, kGlyphWidth, kGlyphHeight),
              third = painted(256 + 2 * kGlyphWidth, 480, kGlyphWidth, kGlyphHeight);
    EXPECT_GT(first, 30);
    EXPECT_EQ(second, 0) << "a space";
    EXPECT_GT(third, 30);
    EXPECT_EQ(first + second + third, all);
    const int half = kGlyphHeight / 2;
    EXPECT_GT(painted(256, 480 + half, kGlyphWidth, half), painted(256, 480, kGlyphWidth, half)) << "a T is heavier at its top";
    EXPECT_GT(painted(320, 480, kGlyphWidth, half), painted(320, 480 + half, kGlyphWidth, half)) << "an L at its foot";
}

TEST_F(TextPicture, IsPaintedAgainUntilItIsCleared)
{
    text.addText("Ente", 0, 0);
    const int once = painted(0, 0, 1024, 768);
    EXPECT_GT(once, 0);
    EXPECT_EQ(painted(0, 0, 1024, 768), once);
    text.addText("Ente", 0, 0);
    EXPECT_EQ(painted(0, 0, 1024, 768), once) << "the same text at the same place";
    text.clear();
    EXPECT_EQ(painted(0, 0, 1024, 768), 0);
    text.addText("E", 0, 0);
    EXPECT_GT(painted(0, 0, 1024, 768), 0);
}

TEST_F(TextPicture, WithoutProgramOrFontNothingIsPainted)
{
    text.addText("Ente", 0, 0);
    {
        const BrokenProgram broken("TextShader");
        EXPECT_EQ(painted(0, 0, 1024, 768), 0);
    }
    text.setFont(nullptr);
    EXPECT_EQ(painted(0, 0, 1024, 768), 0);
    text.setFont(Library::getInstance()->getTexture("Font"));
    text.setShader(nullptr);
    EXPECT_EQ(painted(0, 0, 1024, 768), 0);
}

} // namespace
