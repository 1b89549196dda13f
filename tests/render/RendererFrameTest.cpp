#include "RenderFixture.h"

#include "render/DebugRenderer.h"
#include "render/ParticleSystem.h"

#include <GL/glew.h>
#include <GLFW/glfw3.h>

namespace {

constexpr glm::ivec4 kRed(255, 0, 0, 255), kGreen(0, 255, 0, 255), kBlue(0, 0, 255, 255), kBlack(0, 0, 0, 255);

TEST_F(RenderTest, LaterViewportsCoverEarlierOnesAndEachIsShownToTheState)
{
    const Viewport& first = addView({100, 100, 400, 400}, glm::mat4(1.0f), {1, 0, 0, 1});
    const Viewport& second = addView({300, 300, 400, 400}, glm::mat4(1.0f), {0, 0, 1, 1});
    std::vector<Camera*> watched;
    CameraWatcher state([&watched](Camera* camera) { watched.push_back(camera); });
    frame(&state);
    EXPECT_EQ(watched, (std::vector<Camera*>{first.camera, second.camera}));
    EXPECT_EQ(windowPixel(200, 200), kRed);
    EXPECT_EQ(windowPixel(400, 400), kBlue);

    renderer().setViewports({});
    frame(&state);
    EXPECT_EQ(watched.size(), 2u);
    EXPECT_EQ(windowPixel(200, 200), kRed) << "without viewports the scene of the frame before stays";
}

TEST_F(RenderTest, WithoutASceneViewportsAreStillCleared)
{
    addView({0, 0, 1024, 768}, glm::mat4(1.0f), {0, 1, 0, 1});
    addBox(at(0, 0, -10));
    renderer().setSceneGraph(nullptr);
    std::vector<Camera*> watched;
    CameraWatcher state([&watched](Camera* camera) { watched.push_back(camera); });
    frame(&state);
    EXPECT_EQ(windowPixel(512, 384), kGreen);
    EXPECT_EQ(watched.size(), 1u);
}

TEST_F(RenderTest, TheStepsOfAFrameComeInOrder)
{
    addWholeWindow();
    frame();
    EXPECT_EQ(stepsOfFrame(),
        (std::vector<std::string>{"scene update", "shadow pass", "model passes", "text", "Blur", "CelPostProc", "swap"}));
}

TEST_F(RenderTest, WireframeDrawsOutlinesStraightIntoTheWindowAndComesBack)
{
    BoxModel& box = addBox(at(0, 0, -10), {1, 0, 0, 1});
    GLint target = -1;
    box.onDraw = [&target] { glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &target); };
    addWholeWindow();
    frame();
    EXPECT_EQ(windowPixel(530, 384), kRed);
    EXPECT_GT(target, 0);

    renderer().toggleWireframe();
    frame();
    EXPECT_EQ(windowPixel(530, 384), kBlack) << "between the lines of the box";
    EXPECT_EQ(target, 0);

    renderer().toggleWireframe();
    frame();
    EXPECT_EQ(windowPixel(530, 384), kRed);
    EXPECT_GT(target, 0);
}

TEST_F(RenderTest, AFrameGoesOnWithoutAnyOneOfItsPrograms)
{
    addBox(at(0, 0, -10), {1, 0, 0, 1});
    addView({0, 0, 512, 768});
    addView({512, 0, 512, 768}, glm::mat4(1.0f), {0, 0, 1, 1});
    add<ParticleSystem>(at(0, 0, -20), Library::getInstance()->getShaderprogram("ParticleMovement"));
    DebugRenderer overlay;
    renderer().setDebugRenderer(&overlay);
    for (const char* name : {"Blur", "CelPostProc", "ShadowDepth", "TextShader", "WireframeShader", "ParticleMovement", "ParticleRender"}) {
        SCOPED_TRACE(name);
        addBox(at(0, 100, 0)).isStatic = true; // has the static shadows drawn anew
        {
            const BrokenProgram broken(name);
            keys.hold({GLFW_KEY_F6});
            frame();
            keys.hold({});
            frame();
            EXPECT_EQ(windowPixel(276, 384), kRed);
            EXPECT_EQ(windowPixel(1000, 384), kBlue);
        }
        frame();
        EXPECT_EQ(windowPixel(276, 384), kRed) << "after the program was loaded again";
    }
    renderer().setDebugRenderer(nullptr);
}

} // namespace
