#include "RenderFixture.h"

#include "assets/MeshGeometry.h"
#include "gpu/DrawCalls.h"
#include "scene/Mesh.h"
#include "testing/CapturedLog.h"

#include <GLFW/glfw3.h>
#include <glm/gtc/constants.hpp>

namespace {

const glm::mat4 kLookingBack = glm::rotate(glm::mat4(1.0f), glm::pi<float>(), glm::vec3(0, 1, 0));

class ModelRendererTest : public RenderTest {
protected:
    /// Has the box add its name to `order` whenever it is drawn.
    BoxModel& addNamed(const std::string& name, std::uint32_t renderOrder, ModelLayer layer)
    {
        BoxModel& box = addBox(at(0, 0, -20));
        box.renderOrder = renderOrder;
        box.layer = layer;
        box.onDraw = [this, name] { order += name + " "; };
        return box;
    }

    std::string order;
};

TEST_F(ModelRendererTest, DrawsByRenderOrderThenByLayerInEveryViewport)
{
    addNamed("smoke", 1, ModelLayer::Things);
    addNamed("sky", 0, ModelLayer::Sky);
    addNamed("thing", 0, ModelLayer::Things);
    addNamed("last", 0x80000000u, ModelLayer::Things);
    addNamed("ground", 0, ModelLayer::Ground);
    addNamed("smoke", 1, ModelLayer::Things);
    addNamed("thing", 0, ModelLayer::Things);
    addView({0, 0, 100, 100});
    addView({100, 0, 100, 100});
    const std::string once = "thing thing ground sky smoke smoke last ";
    for (int i = 0; i < 2; ++i) { // each walk meets the same models again
        order = "";
        frame();
        EXPECT_EQ(order, once + once);
    }
}

TEST_F(ModelRendererTest, CullsWhatLiesBehindTheCameraOfEachViewportAndSaysHowMany)
{
    BoxModel &ahead = addBox(at(0, 0, -50)), &behind = addBox(at(0, 0, 50)), &alsoBehind = addBox(at(3, 0, 60));
    BoxModel& everywhere = addBox(at(0, 0, 500));
    everywhere.cullable = false;
    addView({0, 0, 100, 100});
    addView({100, 0, 100, 100}, kLookingBack);

    struct Row {
        std::initializer_list<int> keys;
        std::vector<Line> lines;
        std::vector<int> draws; ///< of the four
    };
    const Row rows[] = {{{}, {{"culled: 2", -1, -1}, {"culled: 1", -1, -1}}, {1, 1, 1, 2}},
        {{GLFW_KEY_F8}, {{"culled: 0", -1, -1}, {"culled: 0", -1, -1}}, {2, 2, 2, 2}},
        {{GLFW_KEY_F1}, {}, {1, 1, 1, 2}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(&row - rows);
        keys.reset();
        keys.hold(row.keys);
        for (BoxModel* box : {&ahead, &behind, &alsoBehind, &everywhere}) box->draws = 0;
        frame();
        EXPECT_EQ(queuedLines(), row.lines);
        EXPECT_EQ((std::vector{ahead.draws, behind.draws, alsoBehind.draws, everywhere.draws}), row.draws);
    }
}

TEST_F(ModelRendererTest, SkipsModelsThatLackSomethingAndDrawsTheOthers)
{
    Mesh nothing;
    MeshGeometry empty(nothing, {MeshAttribute::Position});
    Shaderprogram unlinked;
    addBox(at(0, 0, -10)).shader = nullptr;
    addBox(at(0, 0, -10)).shader = &unlinked;
    addBox(at(0, 0, -10)).vertexBuffer = nullptr;
    Model& withEmptyMesh = addBox(at(0, 0, -10));
    deleteVertexArray(withEmptyMesh.vao);
    withEmptyMesh.setGeometry(empty);
    addBox(at(0, 0, -10)).drawMode = GL_PATCHES; // without tessellation stages

    addBox(at(0, 0, -20), {0, 1, 0, 1});
    addWholeWindow();
    CapturedLog log;
    for (int i = 0; i < 2; ++i) frame();
    EXPECT_LE(log.count("ERROR"), 1) << "a line per frame";
    EXPECT_EQ(windowPixel(512, 384), glm::ivec4(0, 255, 0, 255));
}

TEST_F(ModelRendererTest, BlendsBlendedModelsOnlyAndOnlyWhileThatIsAllowed)
{
    std::vector<bool> blending;
    const auto note = [&blending] { blending.push_back(glIsEnabled(GL_BLEND)); };
    BoxModel& smoke = addBox(at(0, 0, -20));
    smoke.blended = true;
    smoke.onDraw = note;
    BoxModel& after = addBox(at(0, 0, -20));
    after.renderOrder = 1;
    after.onDraw = note;
    addView({0, 0, 100, 100});
    frame();
    renderer().toggleBlending();
    frame();
    renderer().setBlending(true);
    EXPECT_FALSE(glIsEnabled(GL_BLEND));
    renderer().toggleBlending();
    frame();
    EXPECT_EQ(blending, (std::vector<bool>{true, false, false, false, true, false}));
}

} // namespace
