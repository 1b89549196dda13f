#include "RenderFixture.h"

#include "gpu/Texture.h"
#include "gpu/Uniform_Texture.h"
#include "render/Skybox.h"
#include "testing/DataScratch.h"

#include <GL/glew.h>

namespace {

/// A sky whose 4 x 2 cells have a colour each, their right and upper halves marked.
class SkyboxTest : public RenderTest {
protected:
    SkyboxTest() : sky(add<Skybox>(glm::mat4(1.0f))), picture(&texture, 0)
    {
        const DataScratch scratch;
        scratch.writeTga("sky.tga", 64, 32, 3,
            [](int x, int y, int i) { return colour(x / 16, y / 16, x % 16 >= 8, y % 16 >= 8)[i]; });
        texture.load("sky.tga");
        texture.setFilter(GL_NEAREST,
            GL_NEAREST); // the bottom samples one corner, where linear filtering takes in the opposite edges
        sky.uniforms["tex"] = &picture;
    }

    static glm::ivec4 colour(int column, int row, bool right, bool upper)
    {
        return {60 * column + 20, 100 * row + 50, 100 * right + 50 * upper, 255};
    }

    Skybox& sky;
    Texture texture;
    Uniform_Texture picture;
};

TEST_F(SkyboxTest, IsSeenFromInsideMirroredInEveryDirectionWithItsOwnCell)
{
    struct Row {
        const char* face;
        glm::vec3 direction, up;
        int column, row;
    };
    const Row rows[] = {{"-x", {-1, 0, 0}, {0, 1, 0}, 0, 0}, {"+z", {0, 0, 1}, {0, 1, 0}, 1, 0},
        {"+x", {1, 0, 0}, {0, 1, 0}, 2, 0}, {"-z", {0, 0, -1}, {0, 1, 0}, 3, 0}, {"top", {0, 1, 0}, {0, 0, -1}, 1, 1}};
    const Viewport& view = addWholeWindow();
    const glm::vec3 eye(0);
    for (const Row& row : rows) {
        view.camera->getNode()->setTransform(glm::inverse(glm::lookAt(eye, eye + row.direction, row.up)));
        frame();
        for (const bool right : {false, true})
            for (const bool upper : {false, true})
                EXPECT_EQ(windowPixel(right ? 400 : 600, upper ? 450 : 300), colour(row.column, row.row, right, upper))
                    << row.face;
    }
    view.camera->getNode()->setTransform(glm::inverse(glm::lookAt(eye, {0, -1, 0}, {0, 0, 1})));
    frame();
    EXPECT_EQ(windowPixel(520, 390), colour(0, 0, false, false)) << "the floor has the colour of one corner";
}

TEST_F(SkyboxTest, StaysBehindEverythingWhateverIsDrawnFirstAndRestoresTheState)
{
    BoxModel& box = addBox(glm::scale(at(0, 0, -900), glm::vec3(60)), {1, 0, 0, 1}); // beyond the faces of the sky's
    box.onDraw = [] { EXPECT_TRUE(glIsEnabled(GL_CULL_FACE)); };
    addWholeWindow();
    for (const ModelLayer layer : {ModelLayer::Things, ModelLayer::Sky}) {
        sky.layer = layer;
        frame();
        const glm::ivec4 pixel = windowPixel(512, 384);
        EXPECT_GT(pixel.r, pixel.b) << "the sky hides what is there";
    }
}

} // namespace
