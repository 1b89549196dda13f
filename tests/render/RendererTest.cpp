#include "RenderFixture.h"

#include "assets/BallModel.h"
#include "gpu/Texture.h"
#include "render/DebugRenderer.h"
#include "render/ParticleSystem.h"

#include <GL/glew.h>
#include <GLFW/glfw3.h>

namespace {

constexpr glm::ivec4 kRed(255, 0, 0, 255), kGreen(0, 255, 0, 255), kBlue(0, 0, 255, 255);

TEST_F(RenderTest, LaterViewportsCoverEarlierOnesAndTheirPictureStaysWithoutThem)
{
    addView({100, 100, 400, 400}, glm::mat4(1.0f), {1, 0, 0, 1});
    addView({300, 300, 400, 400}, glm::mat4(1.0f), {0, 0, 1, 1});
    for (int i = 0; i < 2; ++i) {
        frame();
        EXPECT_EQ(windowPixel(200, 200), kRed);
        EXPECT_EQ(windowPixel(400, 400), kBlue);
        renderer().setViewports({});
    }
}

TEST_F(RenderTest, OutlinesAreDrawnByTheHullsOfBallsAndAroundWhateverStandsOut)
{
    add<BallModel>(at(0, 0, -10), glm::vec4(0.3f, 1, 0.3f, 1));
    addBox(at(3, 0, -10), {1, 1, 1, 1});
    addView({0, 0, 1024, 768}, glm::mat4(1.0f), {0, 0, 1, 1});
    /// Colours along the row through both, from the middle of the ball to the right.
    const auto colours = [] {
        std::string result;
        for (int x = 512; x < 1024; ++x) {
            const glm::ivec4 pixel = windowPixel(x, 384);
            const bool isInk = pixel.r + pixel.g + pixel.b < 180;
            const char colour = isInk ? 'i' : pixel.g > pixel.b + 20 ? 'g' : pixel.b > pixel.g + 20 ? 'b' : 'w';
            if (result.empty() || result.back() != colour) result += colour;
        }
        return result;
    };
    frame();
    EXPECT_EQ(colours(), "gibiwib");
    Library::getInstance()->getShaderprogram("CelPostProc")->createProgram();
    frame();
    EXPECT_EQ(colours(), "gibwb") << "the hull's alone";
    Library::getInstance()->loadShader("CelPostProc", "Shader/CelPostProc.shader");
}

TEST_F(RenderTest, AFrameGoesOnWithoutAnyOneOfItsPrograms)
{
    addBox(at(0, 0, -10), {1, 0, 0, 1});
    addView({0, 0, 512, 768});
    addView({512, 0, 512, 768}, glm::mat4(1.0f), {0, 0, 1, 1});
    add<ParticleSystem>(glm::mat4(1.0f), Library::getInstance()->getShaderprogram("ParticleMovement"))
        .setEmitterPosition({0, 100, 0});
    DebugRenderer overlay;
    renderer().setDebugRenderer(&overlay);
    for (const std::string name : {"ColorShader", "Blur", "CelPostProc", "ShadowDepth", "TextShader", "WireframeShader",
             "ParticleMovement", "ParticleRender"}) {
        SCOPED_TRACE(name);
        Library::getInstance()->getShaderprogram(name)->createProgram(); // not linked
        addBox(at(2.5f, 0, -10), {0, 1, 0, 1}).isStatic = true;          // has the static shadows drawn anew
        keys.hold({GLFW_KEY_F6});
        frame();
        keys.hold({});
        frame();
        EXPECT_EQ(windowPixel(276, 384) == kRed, name != "ColorShader");
        EXPECT_EQ(windowPixel(1000, 384), kBlue);

        Library::getInstance()->loadShader(name, "Shader/" + name + ".shader");
        frame();
        EXPECT_EQ(windowPixel(276, 384), kRed) << "after the program was loaded again";
        EXPECT_EQ(windowPixel(384, 384), kGreen) << "made while its program was broken";
    }
    renderer().setDebugRenderer(nullptr);
}

TEST_F(RenderTest, FilterSwitchesChangeEveryTextureOfTheLibraryByTheTable)
{
    struct Row {
        void (Renderer::*apply)();
        GLint magnification, minification;
    };
    const Row rows[] = {{&Renderer::toggleMagFilter, GL_NEAREST, GL_NEAREST_MIPMAP_LINEAR},
        {&Renderer::cycleMinFilter, GL_NEAREST, GL_NEAREST},
        {&Renderer::cycleMinFilter, GL_NEAREST, GL_NEAREST_MIPMAP_NEAREST},
        {&Renderer::toggleMagFilter, GL_LINEAR, GL_LINEAR_MIPMAP_NEAREST},
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
