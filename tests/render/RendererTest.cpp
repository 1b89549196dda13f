#include "RenderFixture.h"

#include "gpu/Texture.h"

#include <GL/glew.h>

namespace {

TEST_F(RenderTest, StartsInOrderAndListensToTheDriver)
{
    std::size_t last = 0;
    for (const char* line :
        {"DEBUG | Initialize Renderer\n", "DEBUG | Glfw initialized\n", "DEBUG | Create Window\n", "DEBUG | Glew initialized\n"}) {
        const std::size_t found = firstStart().log.find(line, last);
        ASSERT_NE(found, std::string::npos) << line << "is missing or too early in\n" << firstStart().log;
        last = found;
    }
    EXPECT_EQ(firstStart().log.find("ERROR"), std::string::npos) << firstStart().log;
    EXPECT_TRUE(firstStart().callbackRegistered);
    EXPECT_TRUE(glIsEnabled(GL_DEBUG_OUTPUT_SYNCHRONOUS));
    EXPECT_FALSE(renderer().shouldClose());
}

TEST_F(RenderTest, AFrameWithoutAnyAssetIsQuietAndShowsTheScene)
{
    EXPECT_EQ(firstStart().emptyFrameLog.find("ERROR"), std::string::npos) << firstStart().emptyFrameLog;
    EXPECT_EQ(firstStart().emptyFramePixel, glm::ivec4(255, 0, 0, 255)) << "the viewport's clear colour";
}

TEST_F(RenderTest, FilterSwitchesChangeEveryTextureOfTheLibraryByTheTable)
{
    struct Row {
        const char* change;
        void (Renderer::*apply)();
        GLint magnification, minification;
    };
    const Row rows[] = {
        {"nearest", &Renderer::toggleMagFilter, GL_NEAREST, GL_NEAREST_MIPMAP_LINEAR},
        {"mode 0", &Renderer::cycleMinFilter, GL_NEAREST, GL_NEAREST},
        {"mode 1", &Renderer::cycleMinFilter, GL_NEAREST, GL_NEAREST_MIPMAP_NEAREST},
        {"linear", &Renderer::toggleMagFilter, GL_LINEAR, GL_LINEAR_MIPMAP_NEAREST},
        {"mode 2", &Renderer::cycleMinFilter, GL_LINEAR, GL_LINEAR_MIPMAP_LINEAR},
        {"mode 0 again", &Renderer::cycleMinFilter, GL_LINEAR, GL_NEAREST},
        {"mode 1 again", &Renderer::cycleMinFilter, GL_LINEAR, GL_LINEAR_MIPMAP_NEAREST},
        {"where it began", &Renderer::cycleMinFilter, GL_LINEAR, GL_LINEAR_MIPMAP_LINEAR},
    };
    Library::getInstance()->loadTexture("Smoke", "Textures/Smoke.tga");
    for (const Row& row : rows) {
        (renderer().*row.apply)();
        for (const char* name : {"Font", "Smoke"}) {
            GLint magnification = 0, minification = 0;
            glBindTexture(GL_TEXTURE_2D, Library::getInstance()->getTexture(name)->getHandle());
            glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, &magnification);
            glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &minification);
            EXPECT_EQ(magnification, row.magnification) << name << ", " << row.change;
            EXPECT_EQ(minification, row.minification) << name << ", " << row.change;
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
