#include "RenderFixture.h"

#include "assets/MeshGeometry.h"
#include "base/FrameTimer.h"
#include "gpu/DrawCalls.h"
#include "platform/DataFolder.h"
#include "render/FrameProbe.h"
#include "render/TextRenderer.h"
#include "scene/Mesh.h"
#include "scene/MeshGenerators.h"
#include "testing/CapturedLog.h"
#include "testing/GlErrors.h"

#include <GL/glew.h>

#include <cmath>
#include <stdexcept>

namespace {

constexpr int kWidth = 1024, kHeight = 768; // of the window, pixels

/// Keeps what is in the window before each swap.
class FrameRecorder : public IFrameProbe {
public:
    void stepDone(const char* step) override
    {
        GLint target = 0;
        glGetIntegerv(GL_READ_FRAMEBUFFER_BINDING, &target);
        if (target != 0 || step == std::string("swap")) return;
        picture.resize(std::size_t{kWidth} * kHeight);
        glReadPixels(0, 0, kWidth, kHeight, GL_RGBA, GL_UNSIGNED_BYTE, picture.data());
    }

    glm::ivec4 pixel(int x, int y) const
    {
        return picture.at(static_cast<std::size_t>(y) * kWidth + static_cast<std::size_t>(x));
    }

private:
    std::vector<glm::u8vec4> picture;
};

Renderer* shared = nullptr;
FrameRecorder recorder;
double nextTestStarts = 0; // seconds; the shared renderer must never see time run backwards

/// Closes the window after the last test: the driver's threads must be gone before the process is.
class CloseWindow : public testing::Environment {
public:
    void TearDown() override
    {
        if (shared) shared->terminate();
    }
};

[[maybe_unused]] const testing::Environment* const closeWindow = testing::AddGlobalTestEnvironment(new CloseWindow);

/// Opens the window and draws a frame with an empty library, GL messages going to the log: no error but the one that is
/// made.
void openAndDrawWithoutAssets()
{
    CapturedLog log;
    if (!shared->initialize()) throw std::runtime_error("no OpenGL 4.3 core context; is there a display?");
    glDebugMessageInsert(GL_DEBUG_SOURCE_APPLICATION, GL_DEBUG_TYPE_ERROR, 7, GL_DEBUG_SEVERITY_HIGH, -1, "quack");
    SceneGraph graph;
    Camera camera(45, 1.33f, 0.1f, 1000, glm::vec3(0));
    Viewport view(0, 0, 1024, 768);
    view.camera = &camera;
    view.clearColour = {1, 0, 0, 1};
    shared->setFrameProbe(&recorder);
    shared->setSceneGraph(&graph);
    shared->setViewports({&view});
    shared->render(nullptr);
    EXPECT_EQ(log.count("ERROR"), 1) << log.text();
    EXPECT_TRUE(log.contains("ERROR | OpenGL Error: quack [Source = Application, Type = Error, Severity = High, ID = "
                             "7]\n"));
    EXPECT_EQ(recorder.pixel(512, 384), glm::ivec4(255, 0, 0, 255));
}

void loadAssets()
{
    if (!enterDataFolder()) throw std::runtime_error("no data folder");
    Library* library = Library::getInstance();
    for (const char* name : {"ShadowDepth", "Cel", "Blur", "CelPostProc", "TextShader", "ParticleMovement",
             "ParticleRender", "SkyboxShader", "ColorShader", "WireframeShader"}) {
        library->loadShader(name, std::string("Shader/") + name + ".shader");
    }
    library->loadTexture("Font", "Textures/font.tga");
    library->loadModel("Camera", "Models/camera.dae");
    shared->getTextRenderer()->setShader(library->getShaderprogram("TextShader"));
    shared->getTextRenderer()->setFont(library->getTexture("Font"));
}

MeshGeometry& cube()
{
    static MeshGeometry* geometry = [] {
        Mesh mesh;
        createBox(mesh, glm::vec3(-1), glm::vec3(1));
        return new MeshGeometry(mesh, {MeshAttribute::Position});
    }();
    return *geometry;
}

} // namespace

BoxModel::BoxModel(const glm::vec4& colour)
{
    shader = Library::getInstance()->getShaderprogram("ColorShader");
    setGeometry(cube());
    bindUniforms({.color = colour});
}

BoxModel::~BoxModel()
{
    deleteVertexArray(vao);
}

void BoxModel::draw()
{
    ++draws;
    if (onDraw) onDraw();
    Model::draw();
}

void RenderTest::SetUpTestSuite()
{
    if (shared) return;
    shared = new Renderer();
    openAndDrawWithoutAssets();
    failTestsOnGlErrors();
    loadAssets();
}

RenderTest::RenderTest()
{
    clock.sleep(nextTestStarts);
    FrameTimer::getInstance()->tick();
    shared->setSceneGraph(&graph);
    shared->setViewports({});
    shared->getTextRenderer()->clear();
}

RenderTest::~RenderTest()
{
    graph.acceptRelease(shared->getModelRenderer());
    graph.acceptRelease(shared->getShadowRenderer());
    shared->setSceneGraph(nullptr);
    shared->setViewports({});
    nextTestStarts = clock.now() + 1;
}

Renderer& RenderTest::renderer()
{
    return *shared;
}

Viewport& RenderTest::addView(const Viewport::Rect& rect, const glm::mat4& pose, const glm::vec4& clearColour)
{
    Camera& camera = cameras.emplace_back(45.0f, 1.33f, 0.1f, 1000.0f, glm::vec3(0));
    addNode(pose)->attach(&camera);
    Viewport& view = views.emplace_back(rect.x, rect.y, rect.width, rect.height);
    view.camera = &camera;
    view.clearColour = clearColour;
    shared->addViewport(&view);
    return view;
}

Node* RenderTest::addNode(const glm::mat4& pose)
{
    Node* node = graph.getRoot()->createChild("test");
    node->setTransform(pose);
    return node;
}

void RenderTest::frame()
{
    shared->getTextRenderer()->clear();
    FrameTimer::getInstance()->tick();
    shared->render(nullptr);
}

std::vector<RenderTest::Line> RenderTest::queuedLines() const
{
    constexpr float kGlyph = 0.0625f;
    const auto& queue = shared->getTextRenderer()->getQueue();
    std::vector<Line> lines;
    for (std::size_t i = 0; i < queue.size(); i += 6) {
        const auto& upperLeft = queue[i];
        const float x = upperLeft.x, y = upperLeft.y - kGlyph;
        const bool continues = !lines.empty() && y == lines.back().y &&
            std::abs(lines.back().x + kGlyph * static_cast<float>(lines.back().text.size()) - x) < kGlyph / 2;
        if (!continues) lines.push_back({"", x, y});
        const int cell = static_cast<int>(std::lround(upperLeft.v * 16) * 16 + std::lround(upperLeft.u * 16));
        lines.back().text += cell == 96 ? ' ' : static_cast<char>('!' + cell);
    }
    return lines;
}

glm::ivec4 RenderTest::windowPixel(int x, int y)
{
    return recorder.pixel(x, y);
}
