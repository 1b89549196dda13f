#include "RenderFixture.h"

#include "gpu/Texture.h"

#include <GL/glew.h>

namespace {

TEST_F(RenderTest, FilterSwitchesChangeEveryTextureOfTheLibraryByTheTable)
{
    struct Row {
        void (Renderer::*apply)();
        GLint magnification, minification;
    };
    const Row rows[] = {{&Renderer::toggleMagFilter, GL_NEAREST, GL_NEAREST_MIPMAP_LINEAR},
        {&Renderer::cycleMinFilter, GL_NEAREST, GL_NEAREST}, {&Renderer::cycleMinFilter, GL_NEAREST, GL_NEAREST_MIPMAP_NEAREST},
        {&Renderer::toggleMagFilter, GL_LINEAR, GL_LINEAR_MIPMAP_NEAREST}, {&Renderer::cycleMinFilter, GL_LINEAR, GL_LINEAR_MIPMAP_LINEAR},
        {&Renderer::cycleMinFilter, GL_LINEAR, GL_NEAREST}, {&Renderer::cycleMinFilter, GL_LINEAR, GL_LINEAR_MIPMAP_NEAREST},
        {&Renderer::cycleMinFilter, GL_LINEAR, GL_LINEAR_MIPMAP_LINEAR}};
    Library::getInstance()->loadTexture("Smoke", "Textures/Smoke.tga");
    for (const Row& row : rows) {
        SCOPED_TRACE(&row - rows);
        (renderer().*row.apply)();
        for (const char* name : {"Font", "Smoke"}) {
            GLint magnification = 0, minification = 0;
            glBindTexture(GL_TEXTURE_2D, Library::getInstance()->getTexture(name)->getHandle());
            glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, &magnification);
            glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &minification);
            EXPECT_EQ(magnification, row.magnification) << name;
            EXPECT_EQ(minification, row.minification) << name;
        }
    }
}

TEST_F(RenderTest, TheFpsTextIsNewAtMostOnceASecondShownOrNot)
{
    const auto passOf = [this](double seconds) {
        clock.sleep(seconds);
        frame();
        return queuedLines();
    };
    const auto fps = [](const char* text) { return std::vector<Line>{{text, -0.8f, -0.8f}}; };
    EXPECT_TRUE(passOf(2).empty());
    renderer().toggleFpsDisplay();
    EXPECT_EQ(passOf(0.5), fps("FPS: 0.5")) << "computed in the frame before, while it was not shown";
    EXPECT_EQ(passOf(0.5), fps("FPS: 0.5")) << "a second later, not more";
    EXPECT_EQ(passOf(0.025), fps("FPS: 40"));
    EXPECT_EQ(passOf(0.5), fps("FPS: 40"));
    EXPECT_EQ(passOf(0.6), fps("FPS: 1.66667"));
    renderer().toggleFpsDisplay();
    EXPECT_TRUE(passOf(0.1).empty());
}

} // namespace
