#include "RenderFixture.h"

#include "render/DebugRenderer.h"
#include "scene/Mesh.h"

#include <GL/glew.h>
#include <GLFW/glfw3.h>

namespace {

constexpr int kMarkerTriangles = 12;

class DebugRendererTest : public RenderTest {
protected:
    DebugRendererTest() { renderer().setDebugRenderer(&overlay); }
    ~DebugRendererTest() override { renderer().setDebugRenderer(nullptr); }

    int trianglesOfAFrame()
    {
        GLuint query = 0, count = 0;
        glGenQueries(1, &query);
        glBeginQuery(GL_PRIMITIVES_GENERATED, query);
        frame();
        glEndQuery(GL_PRIMITIVES_GENERATED);
        glGetQueryObjectuiv(query, GL_QUERY_RESULT, &count);
        glDeleteQueries(1, &query);
        return static_cast<int>(count);
    }

    DebugRenderer overlay;
};

TEST_F(DebugRendererTest, MarksNodesAndCamerasThroughThingsInEveryViewportWhileF6IsHeld)
{
    const int cameraTriangles = static_cast<int>(Library::getInstance()->getMesh("Camera")->indices.size()) / 3;
    addBox(at(0, 0, 0), {0, 1, 0, 1}); // hides the root's marker
    addView({0, 0, 512, 384}, at(0, 0, 5));
    addView({512, 384, 512, 384}, at(0, 0, 5));
    const int usual = trianglesOfAFrame();
    constexpr int kNodes = 4, kCameras = 2, kViews = 2;
    for (const bool held : {true, true, false}) {
        if (held) keys.hold({GLFW_KEY_F6});
        else keys.reset();
        EXPECT_EQ(trianglesOfAFrame() - usual,
            held * kViews * (kNodes * kMarkerTriangles + kCameras * cameraTriangles));
        for (const glm::ivec4& pixel : {windowPixel(256, 192), windowPixel(768, 576)})
            EXPECT_EQ(pixel != glm::ivec4(0, 255, 0, 255), held);
    }
}

} // namespace
