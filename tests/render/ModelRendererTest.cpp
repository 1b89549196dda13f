#include "RenderFixture.h"

#include "assets/CelModel.h"
#include "assets/MeshGeometry.h"
#include "gpu/DrawCalls.h"
#include "render/Light.h"
#include "scene/Mesh.h"
#include "scene/MeshGenerators.h"
#include "support/Near.h"

#include <GLFW/glfw3.h>
#include <glm/gtc/constants.hpp>
#include <glm/gtc/type_ptr.hpp>

namespace {

const glm::mat4 kLookingBack = glm::rotate(glm::mat4(1.0f), glm::pi<float>(), glm::vec3(0, 1, 0));

glm::mat4 currentMatrix(const Model& model, const char* name)
{
    glm::mat4 value(0.0f);
    const GLuint program = model.shader->getHandle();
    glGetUniformfv(program, glGetUniformLocation(program, name), glm::value_ptr(value));
    return value;
}

class ModelRendererTest : public RenderTest {
protected:
    /// Has the box add its name to `order` whenever it is drawn.
    BoxModel& addNamed(const std::string& name, std::uint32_t renderOrder, ModelLayer layer)
    {
        BoxModel& box = addBox(at(0, 0, -20));
        box.renderOrder = renderOrder;
        box.layer = layer;
        box.onDraw = [this, name] { order.push_back(name); };
        return box;
    }

    std::vector<std::string> order;
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
    frame();
    const std::vector<std::string> once = {"thing", "thing", "ground", "sky", "smoke", "smoke", "last"};
    std::vector<std::string> twice = once;
    twice.insert(twice.end(), once.begin(), once.end());
    EXPECT_EQ(order, twice);
}

TEST_F(ModelRendererTest, CullsWhatLiesBehindTheCameraOfEachViewportAndSaysHowMany)
{
    const BoxModel& ahead = addBox(at(0, 0, -50));
    const BoxModel& behind = addBox(at(0, 0, 50));
    const BoxModel& alsoBehind = addBox(at(3, 0, 60));
    BoxModel& everywhere = addBox(at(0, 0, 500));
    everywhere.cullable = false;
    addView({0, 0, 100, 100});
    addView({100, 0, 100, 100}, kLookingBack);

    struct Row {
        const char* name;
        std::initializer_list<int> keys;
        std::vector<Line> lines;
        std::vector<int> draws;
    };
    const Row rows[] = {
        {"no key", {}, {{"culled: 2", -1, -1}, {"culled: 1", -1, -1}}, {1, 1, 1, 2}},
        {"F8 held", {GLFW_KEY_F8}, {{"culled: 0", -1, -1}, {"culled: 0", -1, -1}}, {2, 2, 2, 2}},
        {"F1 held", {GLFW_KEY_F1}, {}, {1, 1, 1, 2}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        keys.hold(row.keys);
        const std::vector<int> before = {ahead.draws, behind.draws, alsoBehind.draws, everywhere.draws};
        frame();
        EXPECT_EQ(queuedLines(), row.lines);
        const std::vector<int> after = {ahead.draws, behind.draws, alsoBehind.draws, everywhere.draws};
        for (std::size_t i = 0; i < after.size(); ++i) EXPECT_EQ(after[i] - before[i], row.draws[i]) << "box " << i;
    }
}

TEST_F(ModelRendererTest, AModelStaysUntilItIsReleasedAndIsDrawnOnceHoweverOftenItIsMet)
{
    BoxModel& box = addBox(at(0, 0, -50));
    box.getNode()->attach(&box); // met twice in each walk
    addView({0, 0, 100, 100});
    frame();
    frame();
    EXPECT_EQ(box.draws, 2);
    box.getNode()->destroy();
    frame();
    EXPECT_EQ(box.draws, 3) << "the walk only adds: out of the tree is not yet released";
    renderer().getModelRenderer()->releaseModel(&box);
    renderer().getShadowRenderer()->releaseModel(&box);
    frame();
    EXPECT_EQ(box.draws, 3);
}

TEST_F(ModelRendererTest, SkipsModelsThatLackSomethingAndDrawsTheOthers)
{
    Mesh nothing;
    MeshGeometry empty(nothing, {MeshAttribute::Position});
    Shaderprogram unlinked;
    Model& withoutProgram = addBox(at(0, 0, -10));
    withoutProgram.shader = nullptr;
    Model& withBrokenProgram = addBox(at(0, 0, -10));
    withBrokenProgram.shader = &unlinked;
    Model& withoutVertices = addBox(at(0, 0, -10));
    withoutVertices.vertexBuffer = nullptr;
    Model& withEmptyMesh = addBox(at(0, 0, -10));
    deleteVertexArray(withEmptyMesh.vao);
    withEmptyMesh.setGeometry(empty);
    add<Model>(at(0, 0, -10));
    Model& wrongMode = addBox(at(0, 0, -10));
    wrongMode.drawMode = GL_PATCHES; // without tessellation stages

    addBox(at(0, 0, -20), {0, 1, 0, 1});
    addWholeWindow();
    frame();
    EXPECT_EQ(windowPixel(512, 384), glm::ivec4(0, 255, 0, 255));
}

TEST_F(ModelRendererTest, DrawsAModelWhoseProgramIsMendedAfterItWasMade)
{
    addWholeWindow();
    {
        const BrokenProgram broken("ColorShader");
        addBox(at(0, 0, -10), {0, 1, 0, 1});
        frame();
        EXPECT_EQ(windowPixel(512, 384), glm::ivec4(0, 0, 0, 255));
    }
    frame();
    EXPECT_EQ(windowPixel(512, 384), glm::ivec4(0, 255, 0, 255));
}

/// A cel-shaded box that shows, after it is drawn, what its program was given.
class CelBox : public CelModel {
public:
    CelBox() : transformation(this)
    {
        createBox(mesh, glm::vec3(-1), glm::vec3(1));
        mesh.calculateNormals();
        geometry =
            std::make_unique<MeshGeometry>(mesh, std::initializer_list<MeshAttribute>{MeshAttribute::Position, MeshAttribute::Normal});
        setGeometry(*geometry);
        bindCameraUniforms(true);
        uniforms["model"] = &transformation;
    }

    void draw() override
    {
        CelModel::draw();
        lightMatrix = currentMatrix(*this, "depthVPMatrix");
        const GLuint program = shader->getHandle();
        glGetUniformiv(program, glGetUniformLocation(program, "shadow_texture"), &samplerUnit);
        GLint active = 0;
        glGetIntegerv(GL_ACTIVE_TEXTURE, &active);
        glActiveTexture(GL_TEXTURE2);
        glGetIntegerv(GL_TEXTURE_BINDING_2D, &boundTexture);
        glActiveTexture(static_cast<GLenum>(active));
        glGetIntegerv(GL_CULL_FACE_MODE, &culledAfterwards);
    }

    glm::mat4 lightMatrix{0.0f};
    GLint samplerUnit = -1, boundTexture = 0, culledAfterwards = 0;

private:
    Mesh mesh;
    std::unique_ptr<MeshGeometry> geometry;
    Uniform_AttachableTransformation transformation;
};

TEST_F(ModelRendererTest, GivesProgramsTheLightsMatrixAndItsDepthTexture)
{
    const CelBox& box = add<CelBox>(at(0, 0, -20));
    addView({0, 0, 100, 100});
    frame();
    EXPECT_TRUE(isNear(box.lightMatrix, biasedLightViewProjection()));
    EXPECT_EQ(box.samplerUnit, 2);
    EXPECT_EQ(box.boundTexture, static_cast<GLint>(renderer().getLightDepthTexture()));
    EXPECT_EQ(box.culledAfterwards, GL_FRONT);

    const glm::vec4 lookup = box.lightMatrix * glm::vec4(0, 0, 0, 1);
    EXPECT_TRUE(isNear(glm::vec2(lookup), glm::vec2(0.5f))) << "the origin lies in the middle of the light depth texture";
}

TEST_F(ModelRendererTest, OneModelSeesTheMatricesOfEachViewportsCamera)
{
    BoxModel& box = addBox(at(0, 0, -20));
    std::vector<glm::mat4> seen;
    std::vector<Camera*> drawnFor;
    box.onDraw = [&] {
        seen.push_back(currentMatrix(box, "view"));
        drawnFor.push_back(renderer().getCurrentCamera());
        EXPECT_TRUE(isNear(currentMatrix(box, "projection"), drawnFor.back()->getProjection()));
        EXPECT_TRUE(isNear(currentMatrix(box, "model"), box.getNode()->getWorldTransform()));
    };
    const Viewport& first = addView({0, 0, 100, 100}, at(1, 2, 3));
    const Viewport& second = addView({100, 0, 100, 100}, at(-4, 0, 9));
    frame();
    ASSERT_EQ(drawnFor, (std::vector<Camera*>{first.camera, second.camera}));
    EXPECT_TRUE(isNear(seen[0], glm::inverse(at(1, 2, 3))));
    EXPECT_TRUE(isNear(seen[1], glm::inverse(at(-4, 0, 9))));

    const UniformVariant unknown = renderer().getGlobalUniform("noSuchMatrix");
    EXPECT_EQ(boost::get<IUniform<glm::mat4>*>(unknown), nullptr);
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
