#include "RenderFixture.h"

#include "render/DebugRenderer.h"
#include "scene/Mesh.h"

#include <GL/glew.h>
#include <GLFW/glfw3.h>

namespace {

constexpr int kMarkerTriangles = 12;

int trianglesOf(const std::function<void()>& drawing)
{
    GLuint query = 0, count = 0;
    glGenQueries(1, &query);
    glBeginQuery(GL_PRIMITIVES_GENERATED, query);
    drawing();
    glEndQuery(GL_PRIMITIVES_GENERATED);
    glGetQueryObjectuiv(query, GL_QUERY_RESULT, &count);
    glDeleteQueries(1, &query);
    return static_cast<int>(count);
}

TEST_F(RenderTest, F6MarksNodesAndCamerasThroughThingsInEveryViewportWhileHeld)
{
    Library& library = *Library::getInstance();
    library.getShaderprogram("WireframeShader")->createProgram(); // not linked
    DebugRenderer overlay;
    renderer().setDebugRenderer(&overlay);
    addBox(at(0, 0, 0), {0, 1, 0, 1}); // hides the root's marker
    addView({0, 0, 512, 384}, at(0, 0, 5));
    addView({512, 384, 512, 384}, at(0, 0, 5));
    const int usual = trianglesOf([this] { frame(); });
    const int cameraTriangles = static_cast<int>(library.getMesh("Camera")->indices.size()) / 3;
    constexpr int kNodes = 4, kCameras = 2, kViews = 2;

    for (const auto& [mended, held] : {std::pair{false, true}, {true, true}, {true, true}, {true, false}}) {
        if (mended) library.loadShader("WireframeShader", "Shader/WireframeShader.shader");
        if (held) keys.hold({GLFW_KEY_F6});
        else keys.hold({});
        const bool shown = mended && held;
        EXPECT_EQ(trianglesOf([this] { frame(); }) - usual,
            shown * kViews * (kNodes * kMarkerTriangles + kCameras * cameraTriangles));
        for (const glm::ivec4& pixel : {windowPixel(256, 192), windowPixel(768, 576)})
            EXPECT_EQ(pixel != glm::ivec4(0, 255, 0, 255), shown);
    }
    renderer().setDebugRenderer(nullptr);
}

} // namespace
