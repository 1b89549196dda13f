#include "RenderFixture.h"

#include "render/DebugRenderer.h"
#include "scene/Mesh.h"

#include <GL/glew.h>
#include <GLFW/glfw3.h>

namespace {

constexpr int kMarkerTriangles = 12;

class DebugRendererTest : public RenderTest {
protected:
    ~DebugRendererTest() override { renderer().setDebugRenderer(nullptr); }

    /// Triangles that a render() draws.
    int triangles(Camera* camera)
    {
        GLuint query = 0, count = 0;
        glGenQueries(1, &query);
        glBeginQuery(GL_PRIMITIVES_GENERATED, query);
        overlay.render(camera);
        glEndQuery(GL_PRIMITIVES_GENERATED);
        glGetQueryObjectuiv(query, GL_QUERY_RESULT, &count);
        glDeleteQueries(1, &query);
        return static_cast<int>(count);
    }

    DebugRenderer overlay;
};

TEST_F(DebugRendererTest, DrawsAMarkerANodeAndAModelACameraOfOneWalk)
{
    const int cameraTriangles = static_cast<int>(Library::getInstance()->getMesh("Camera")->indices.size()) / 3;
    Camera* camera = addWholeWindow(at(0, 0, 30)).camera;
    graph.update();
    graph.accept(&overlay);
    overlay.releaseNode(graph.getRoot());
    EXPECT_EQ(triangles(camera), kMarkerTriangles + cameraTriangles) << "the camera and its node";
    EXPECT_EQ(triangles(camera), 0) << "forgotten once drawn";
    glEnable(GL_BLEND);
    overlay.render(camera);
    EXPECT_FALSE(glIsEnabled(GL_BLEND));
    EXPECT_TRUE(glIsEnabled(GL_DEPTH_TEST));
}

TEST_F(DebugRendererTest, ShowsThroughThingsInEveryViewportWhileF6IsHeld)
{
    renderer().setDebugRenderer(&overlay);
    addBox(at(0, 0, 0), {0, 1, 0, 1}); // hides the root's marker
    addView({0, 0, 512, 384}, at(0, 0, 5));
    addView({512, 384, 512, 384}, at(0, 0, 5));
    for (const bool held : {false, true, true, false}) {
        if (held) keys.hold({GLFW_KEY_F6});
        else keys.hold({});
        frame();
        for (const glm::ivec4& pixel : {windowPixel(256, 192), windowPixel(768, 576)}) EXPECT_EQ(pixel != glm::ivec4(0, 255, 0, 255), held);
    }
}

} // namespace
