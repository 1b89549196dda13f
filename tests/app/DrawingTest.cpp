#include "render/GlDebug.h" // first: the entry points' loader goes before the window library

#include "StoryGame.h"

#include "app/GameStateManager.h"
#include "assets/BallModel.h"
#include "assets/Library.h"
#include "gpu/Shader.h"
#include "gpu/Shaderprogram.h"
#include "gpu/Texture.h"
#include "render/DebugRenderer.h"
#include "render/Framebuffer.h"
#include "render/FullScreenQuad.h"
#include "render/ParticleSystem.h"
#include "render/TextRenderer.h"
#include "testing/CapturedLog.h"
#include "testing/GlErrors.h"
#include "testing/ScriptedDevice.h"

#include <GL/glew.h>

#include <cmath>
#include <vector>

namespace {

constexpr double kSmoke = 0.03; // share of a picture that the smoke changes from one drawing to the next

/// One of each kind that owns GL objects.
struct Owners {
    Owners()
    {
        program.attachShader(&stage);
        program.link();
        program.use();
        texture.load("Textures/font.tga");
    }

    Shader stage{GL_VERTEX_SHADER, "#version 430 core\nvoid main() { gl_Position = vec4(0); }\n"};
    Shaderprogram program;
    Texture texture;
    TargetTexture target{GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, glm::ivec2(4)};
    Framebuffer framebuffer{&target, nullptr};
    FullScreenQuad quad;
    TextRenderer text;
    ParticleSystem smoke{Library::getInstance()->getShaderprogram("ParticleMovement")};
    BallModel ball{glm::vec4(1)};
    DebugRenderer overlay;
};

int objectCount()
{
    Shaderprogram::unuse(); // a program in use outlives its deletion
    int count = 0;
    for (GLuint name = 1; name < 3000; ++name) { // more than there are
        for (const auto is : {glIsBuffer, glIsFramebuffer, glIsProgram, glIsShader, &glIsTexture, glIsVertexArray})
            count += is(name);
    }
    return count;
}

/// What the renderer does with the world of a match in which everybody stands still.
class Drawing : public StoryGame {
protected:
    Drawing()
    {
        Match& match = game->getMatch();
        while (match.getActorCount() < 3) match.addComputerPlayer();
        if (match.getPlayers().empty()) match.addPlayer(device);
        states().changeState("PlayGamestate");
        pass();
    }

    static Library& library() { return *Library::getInstance(); }
    static void unlink(const std::string& name) { library().getShaderprogram(name)->createProgram(); }
    static void reload(const std::string& name) { library().loadShader(name, "Shader/" + name + ".shader"); }

    /// The last text in the queue, letter by letter.
    static std::string lastText()
    {
        const auto& queue = game->getRenderer().getTextRenderer()->getQueue();
        std::string text;
        for (std::size_t end = queue.size(); end > 0; end -= 6) {
            const TextRenderer::vertex& corner = queue[end - 6];
            if (end < queue.size() && std::abs(corner.x + 0.0625f - queue[end].x) > 0.01f) break;
            const int cell = static_cast<int>(std::lround(corner.v * 16) * 16 + std::lround(corner.u * 16));
            text.insert(text.begin(), cell == 96 ? ' ' : static_cast<char>('!' + cell));
        }
        return text;
    }

    static std::vector<float> lightDepth()
    {
        std::vector<float> depths(std::size_t{4096} * 3072);
        glBindTexture(GL_TEXTURE_2D, game->getRenderer().getLightDepthTexture());
        glGetTexImage(GL_TEXTURE_2D, 0, GL_DEPTH_COMPONENT, GL_FLOAT, depths.data());
        return depths;
    }

    static inline ScriptedDevice device;
};

TEST_F(Drawing, CountsWhatItLeavesOutAndShowsTheFrameRateOnceASecond)
{
    game->pass();
    EXPECT_TRUE(lastText().starts_with("culled: "));
    EXPECT_NE(lastText(), "culled: 0");
    keys().hold({GLFW_KEY_F8});
    game->pass();
    EXPECT_EQ(lastText(), "culled: 0");

    keys().reset();
    const auto isShown = [] { return lastText().starts_with("FPS: "); };
    game->pass();
    EXPECT_FALSE(isShown());
    keys().tap(GLFW_KEY_F2);
    std::vector<double> changes; // moments
    std::string before;
    for (int i = 0; i < 12; ++i) {
        const double seconds = 0.2 + 0.005 * i; // of this pass
        game->getClock().sleep(seconds - kPassSeconds);
        game->pass();
        EXPECT_TRUE(isShown());
        if (lastText() == before) continue;
        before = lastText();
        changes.push_back(game->getClock().now());
        EXPECT_TRUE(i == 0 || std::abs(std::stod(before.substr(5)) * seconds - 1) < 0.1) << before << " at " << i;
    }
    ASSERT_EQ(changes.size(), 3u);
    EXPECT_NEAR(changes[2] - changes[1], 1.2, 0.2);
    keys().tap(GLFW_KEY_F2);
    game->pass();
    EXPECT_FALSE(isShown());
}

TEST_F(Drawing, KeepsTheShadowsOfWhatMovesUpToDate)
{
    for (int i = 0; i < 10; ++i) game->pass();
    const std::vector<float> kept = lightDepth();
    reload("ShadowDepth"); // has everything drawn anew
    game->draw();
    EXPECT_TRUE(kept == lightDepth());
}

TEST_F(Drawing, GoesOnWithoutAnyOneOfItsProgramsAndHasItBackWhenItIsMended)
{
    const Picture whole = game->draw();
    for (const std::string name : {"Blur", "CelPostProc", "ShadowDepth", "TextShader", "Cel", "WireframeShader",
             "ParticleMovement", "ParticleRender", "TerrainShader", "TerrainFar", "TerrainSunny", "SkyboxShader"}) {
        SCOPED_TRACE(name);
        unlink(name);
        CapturedLog log;
        const Picture lacking = game->draw();
        EXPECT_LT(log.count("ERROR"), 2) << log.text();
        const bool isReplaced = name == "TerrainFar" || name == "TerrainSunny"; // by other ground
        if (isReplaced) EXPECT_LT(changedShare(whole, lacking), kSmoke);
        else EXPECT_TRUE(lacking.pixels != whole.pixels);
        reload(name);
        EXPECT_LT(changedShare(whole, game->draw()), kSmoke);
    }

    unlink("Cel");
    BallModel late(glm::vec4(1)); // made while its program is broken
    Node& node = *game->getScene().getRoot()->createChild("late");
    node.attach(&late);
    reload("Cel");
    keys().hold({GLFW_KEY_F8}); // wherever it is
    game->draw();
    EXPECT_TRUE(late.isDrawable());
    node.destroy();
    game->getRenderer().getModelRenderer()->releaseModel(&late);
    game->getRenderer().getShadowRenderer()->releaseModel(&late);
}

TEST_F(Drawing, ShowsNodesAndCamerasWhileF6IsHeldAlsoWhenTheirProgramWasBrokenAtTheStart)
{
    unlink("WireframeShader");
    DebugRenderer overlay;
    game->getRenderer().setDebugRenderer(&overlay);
    reload("WireframeShader");
    const Picture usual = game->draw();
    keys().hold({GLFW_KEY_F6});
    const double shown = changedShare(usual, game->draw());
    keys().reset();
    EXPECT_GT(shown, 0.001);
    game->draw(); // the key sticks
    EXPECT_LT(changedShare(usual, game->draw()), shown / 2);
    game->getRenderer().setDebugRenderer(nullptr);
}

TEST_F(Drawing, ComesBackFromTheWireFrameAsItWas)
{
    const Picture solid = game->draw();
    game->getRenderer().toggleWireframe();
    EXPECT_GT(changedShare(solid, game->draw()), 0.5);
    game->getRenderer().toggleWireframe();
    EXPECT_LT(changedShare(solid, game->draw()), kSmoke);
}

TEST_F(Drawing, DeletesGlObjectsWithTheirOwnersAndLeavesThemAloneOnceTheirContextHasGone)
{
    const int before = objectCount();
    auto owners = std::make_unique<Owners>();
    const int most = objectCount();
    EXPECT_GT(most, before + 15);
    owners.reset();
    EXPECT_EQ(objectCount(), before);

    owners = std::make_unique<Owners>();
    GLFWwindow* const window = glfwGetCurrentContext();
    glfwMakeContextCurrent(nullptr);
    owners.reset(); // the test fails at any call of OpenGL
    EXPECT_EQ(Shaderprogram::current(), nullptr);
    glfwMakeContextCurrent(window);
    EXPECT_EQ(objectCount(), most);
}

TEST_F(Drawing, FollowsItsWindowThroughAHundredSizesAndFillsTheMonitorWithoutKeepingAnythingOfThem)
{
    Renderer& renderer = game->getRenderer();
    GLFWwindow* const window = glfwGetCurrentContext();
    const auto isFilled = [](const Picture& picture) { // the corners, each with something in it
        const std::size_t row = 3 * static_cast<std::size_t>(picture.width);
        const std::size_t end = picture.pixels.size();
        const auto isSeen = [&](std::size_t at) { return picture.pixels[at] + picture.pixels[at + 1] > 0; };
        return isSeen(0) && isSeen(row - 30) && isSeen(end - row) && isSeen(end - 30);
    };
    const auto expectSize = [&](int width, int height) {
        for (int tries = 0; tries < 1000 && (renderer.getWidth() != width || renderer.getHeight() != height); ++tries)
            game->pass();
        const Picture picture = game->draw();
        EXPECT_EQ(std::pair(picture.width, picture.height), std::pair(width, height));
        EXPECT_TRUE(isFilled(picture)) << width;
    };
    game->draw();
    const int before = objectCount();
    for (int i = 1; i <= 100; ++i) {
        glfwSetWindowSize(window, 320 + i, 420 - i);
        expectSize(320 + i, 420 - i);
    }
    glfwSetWindowSize(window, 1024, 768);
    expectSize(1024, 768);

    const GLFWvidmode& screen = *glfwGetVideoMode(glfwGetPrimaryMonitor());
    renderer.getWindow().toggleFullscreen();
    expectSize(screen.width, screen.height);
    int x = 1, y = 1;
    glfwGetWindowPos(window, &x, &y);
    EXPECT_EQ(std::pair(x, y), std::pair(0, 0));
    renderer.getWindow().toggleFullscreen();
    expectSize(1024, 768);
    glfwGetWindowPos(window, &x, &y);
    EXPECT_EQ(std::pair(x, y), std::pair(300, 30));
    EXPECT_LT(objectCount(), before + 50) << "more than shots that are in flight";
}

TEST_F(Drawing, LogsWhatTheDriverHasToSay)
{
    CapturedLog log;
    enableGlDebugOutput();
    glDebugMessageInsert(GL_DEBUG_SOURCE_APPLICATION, GL_DEBUG_TYPE_ERROR, 7, GL_DEBUG_SEVERITY_HIGH, -1, "quack");
    failTestsOnGlErrors();
    EXPECT_EQ(log.text(),
        "ERROR | OpenGL Error: quack [Source = Application, Type = Error, Severity = High, ID = 7]\n");
}

} // namespace
