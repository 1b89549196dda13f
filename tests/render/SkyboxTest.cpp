#include "RenderFixture.h"

#include "app/base/IGameState.h"
#include "gpu/Texture.h"
#include "gpu/Uniform_Texture.h"
#include "render/Skybox.h"
#include "support/DataScratch.h"

#include <GL/glew.h>

namespace {

/// A sky whose 4 x 2 cells have a plain colour each.
class SkyboxTest : public RenderTest {
protected:
    SkyboxTest() : sky(add<Skybox>(glm::mat4(1.0f))), picture(&texture, 0)
    {
        const DataScratch scratch;
        scratch.writeTga("sky.tga", 64, 32, 3, [](int x, int y, int i) { return cellColour(x / 16, y / 16)[i]; });
        texture.load("sky.tga");
        texture.setFilter(GL_NEAREST, GL_NEAREST); // the bottom samples one corner, where linear filtering takes in the opposite edges
        sky.bindCameraUniforms(false);
        sky.uniforms["tex"] = &picture;
    }

    static glm::ivec4 cellColour(int column, int row) { return {60 * column + 20, 100 * row + 50, 200, 255}; }

    Skybox& sky;
    Texture texture;
    Uniform_Texture picture;
};

TEST_F(SkyboxTest, IsSeenFromInsideInEveryDirectionWithItsOwnCell)
{
    struct Row {
        const char* face;
        glm::vec3 direction, up;
        int column, row;
    };
    const Row rows[] = {
        {"-x", {-1, 0, 0}, {0, 1, 0}, 0, 0},
        {"+z", {0, 0, 1}, {0, 1, 0}, 1, 0},
        {"+x", {1, 0, 0}, {0, 1, 0}, 2, 0},
        {"-z", {0, 0, -1}, {0, 1, 0}, 3, 0},
        {"top", {0, 1, 0}, {0, 0, 1}, 1, 1},
        {"bottom", {0, -1, 0}, {0, 0, 1}, 0, 0},
    };
    const Viewport& view = addWholeWindow();
    for (const Row& row : rows) {
        const glm::vec3 eye(120, 30, -200);
        view.camera->getNode()->setTransform(glm::inverse(glm::lookAt(eye, eye + row.direction, row.up)));
        frame();
        EXPECT_EQ(windowPixel(520, 390), cellColour(row.column, row.row)) << row.face;
    }
}

/// Reads the depth of the scene, and the state, once the models are drawn.
class DepthReader : public IGameState {
public:
    DepthReader() : IGameState("DepthReader") {}
    virtual ~DepthReader() = default;
    void enter() override {}
    void leave() override {}
    void update() override {}
    void renderCamera(Camera*) override
    {
        glReadPixels(100, 100, 1, 1, GL_DEPTH_COMPONENT, GL_FLOAT, &depth);
        glGetBooleanv(GL_DEPTH_WRITEMASK, &writesDepth);
        culls = glIsEnabled(GL_CULL_FACE);
    }

    float depth = 0;
    GLboolean writesDepth = GL_FALSE, culls = GL_FALSE;
};

TEST_F(SkyboxTest, LeavesNoTraceInTheDepthBufferAndRestoresTheState)
{
    addWholeWindow();
    DepthReader reader;
    frame(&reader);
    EXPECT_EQ(windowPixel(100, 100), cellColour(3, 0));
    EXPECT_EQ(reader.depth, 1.0f);
    EXPECT_TRUE(reader.writesDepth);
    EXPECT_TRUE(reader.culls);
}

TEST_F(SkyboxTest, StaysBehindEverythingWhateverIsDrawnFirst)
{
    addBox(glm::scale(at(0, 0, -900), glm::vec3(60)), {1, 0, 0, 1}); // beyond the faces of the box
    addWholeWindow();
    for (const ModelLayer layer : {ModelLayer::Things, ModelLayer::Sky}) {
        sky.layer = layer;
        frame();
        const glm::ivec4 pixel = windowPixel(512, 384);
        EXPECT_GT(pixel.r, pixel.b) << "the sky hides what is there";
    }
}

} // namespace
