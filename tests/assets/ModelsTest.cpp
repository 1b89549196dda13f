#include "assets/BallModel.h"
#include "assets/DriverModel.h"
#include "assets/HellknightModel.h"
#include "assets/IRenderServices.h"
#include "assets/Library.h"
#include "assets/MeshGeometry.h"
#include "assets/PartyhatModel.h"
#include "gpu/Shaderprogram.h"
#include "scene/Camera.h"
#include "scene/Mesh.h"
#include "scene/SceneGraph.h"
#include "support/DataCapturedLog.h"
#include "support/DataScratch.h"
#include "support/GlErrors.h"
#include "support/GlFixture.h"

#include <GL/glew.h>
#include <glm/gtc/matrix_transform.hpp>

#include <memory>

namespace {

/// The renderer's part towards models, with a projection that a test can change.
class Services : public IRenderServices {
public:
    template <class Matrix>
    struct Source : IUniform<Matrix> {
        Matrix get() override { return value; }
        Matrix value{1.0f};
    };

    Services() { setCurrent(this); }
    ~Services() { setCurrent(nullptr); }

    UniformVariant& getGlobalUniform(const std::string& name) override { return table.at(name); }
    void cullFrontFaces() override { glCullFace(GL_FRONT); }
    void cullBackFaces() override { glCullFace(GL_BACK); }

    Source<glm::mat4> view, projection;

private:
    Source<glm::mat3> normalMatrix;
    std::map<std::string, UniformVariant> table{{"viewMatrix", &view}, {"projectionMatrix", &projection}, {"normalMatrix", &normalMatrix}};
};

/// The picture shows red where the pass with "backface" 1 painted the inside of a face, green where the other one did the outside, and
/// the colour's blue in both.
const char* const kCelVertex = "#version 430 core\nin vec3 position; in vec3 normal; uniform mat4 view, projection, model;\n"
                               "uniform mat3 normalMatrix; out vec3 n; void main() { n = normalMatrix * normal;\n"
                               "gl_Position = projection * view * model * vec4(position, 1.0); }";
const char* const kCelFragment = "#version 430 core\nin vec3 n; uniform float backface; uniform vec4 color; out vec4 colour;\n"
                                 "void main() { float inside = float(gl_FrontFacing);\n"
                                 "colour = vec4(backface * inside, (1.0 - backface) * (1.0 - inside), color.b, 1.0) + 0.0001 * n.xyzz; }";

class ModelsTest : public GlTest {
protected:
    ModelsTest()
    {
        data.write("cel.vert", kCelVertex);
        data.write("cel.frag", kCelFragment);
        data.write("cel.shader", "VERTEX_SHADER cel.vert FRAGMENT_SHADER cel.frag");
        library.loadShader("Cel", "cel.shader");
        glEnable(GL_CULL_FACE);
        glCullFace(GL_FRONT);
    }

    static void drawAsAPassDoes(Model& model)
    {
        model.bindShader();
        model.applyUniforms();
        model.draw();
        Shaderprogram::unuse();
    }

    static glm::ivec4 centre() { return pixelAt(kSide / 2, kSide / 2); }

    DataScratch data;
    Library& library = *Library::getInstance();
    SceneGraph graph;
    Services services;
};

struct Shooter {
    glm::vec4 getColor() const { return {0, 0, 1, 1}; }
};

TEST_F(ModelsTest, ABallIsDrawnInBothPassesInItsShootersColourAndLeavesFrontFacesCulled)
{
    Shooter shooter;
    BallModel ball(nullptr, &shooter);
    services.projection.value = glm::scale(glm::mat4(1.0f), glm::vec3(0.5f));

    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE); // what both passes painted adds up
    drawAsAPassDoes(ball);
    glDisable(GL_BLEND);
    EXPECT_EQ(centre(), glm::ivec4(255)) << "red from the far side, green from the near one";
    EXPECT_EQ(integer(GL_CULL_FACE_MODE), GL_FRONT);

    drawAsAPassDoes(ball);
    EXPECT_EQ(centre(), glm::ivec4(0, 255, 255, 255)) << "the near side comes last";
    EXPECT_EQ(pixelAt(2, 2), glm::ivec4(0)) << "a sphere of radius 1 fills half the picture";
}

TEST_F(ModelsTest, BallsShareOneSphereAndReleaseWhatIsTheirs)
{
    auto first = std::make_unique<BallModel>(nullptr, glm::vec4(1.0f));
    BallModel second(nullptr, glm::vec4(1.0f));
    EXPECT_EQ(first->vertexBuffer, second.vertexBuffer);
    const GLuint vao = first->vao;
    EXPECT_NE(vao, second.vao);
    first.reset();
    EXPECT_FALSE(glIsVertexArray(vao));
    drawAsAPassDoes(second);
    EXPECT_GT(centre().g, 0) << "the other's sphere is still there";

    CompilerErrorsExpected spoiled;
    data.write("cel.frag", "garbage");
    library.loadShader("Cel", "cel.shader");
    EXPECT_FALSE(second.isDrawable());
    EXPECT_TRUE(second.hasGeometry()) << "it still casts a shadow";
}

TEST_F(ModelsTest, EveryHatRebuildsTheSharedNormalsToTheSameResult)
{
    auto mesh = std::make_unique<Mesh>();
    mesh->positions = {{0, 0, 0}, {1, 0, 0}, {0, 0.8f, -0.6f}}; // seen clockwise, its normal is (0, -0.6, -0.8)
    mesh->normals.assign(3, glm::vec3(9));
    mesh->indices = {0, 1, 2};
    ASSERT_TRUE(library.insert("Partyhat", mesh.get()));
    const Mesh* shared = mesh.release();

    const glm::vec4 gold(1.0f, 0.843137f, 0.0f, 1.0f);
    const PartyhatModel first(gold, nullptr), second(gold, nullptr), third(gold, nullptr);
    EXPECT_NEAR(shared->normals[0].y, 0.8f, 1e-5f);
    EXPECT_NEAR(shared->normals[0].z, -0.6f, 1e-5f);
    const std::vector<float> vertices = contentOf<float>(first.vertexBuffer->getHandle());
    ASSERT_EQ(vertices.size(), 18u);
    EXPECT_NEAR(vertices[1], 0.8f, 1e-5f) << "normals lie before positions";
    EXPECT_EQ(contentOf<float>(third.vertexBuffer->getHandle()), vertices);
}

TEST_F(ModelsTest, ADriverWhoseMeshFailedToLoadIsNotDrawn)
{
    CapturedLog log;
    DriverModel driver(nullptr, glm::vec4(1.0f));
    EXPECT_EQ(log.text(), "WARNING | Duck is not in Library\n");
    EXPECT_FALSE(driver.isDrawable());
    EXPECT_FALSE(driver.hasGeometry());
    drawAsAPassDoes(driver);
    EXPECT_EQ(paintedPixels(), 0);
}

TEST_F(ModelsTest, AHellknightSetsItsUniformsForTheCameraItself)
{
    data.copyGameData();
    data.writeTga("knight.tga", 2, 2, 3, [](int x, int y, int i) { return i == 0 ? 255 * x : i == 1 ? 255 * y : 255; });
    library.loadShader("TextureShader", "Shader/TextureShader.shader");
    library.loadTexture("Hellknight_Diffuse", "knight.tga");
    Mesh* mesh = new Mesh();
    mesh->positions = {{-1, -1, 0}, {-1, 1, 0}, {1, 1, 0}, {1, -1, 0}}; // clockwise towards +z
    mesh->normals.assign(4, glm::vec3(0, 0, 1));
    mesh->texcoords.assign(4, glm::vec2(0.75f, 0.25f));
    mesh->indices = {0, 1, 2, 0, 2, 3};
    ASSERT_TRUE(library.insert("Hellknight", mesh));

    HellknightModel knight;
    Camera camera(45, 1.3333334f, 0.1f, 1000, glm::vec3(0));
    Node &knightNode = *graph.getRoot()->createChild("knight"), &cameraNode = *graph.getRoot()->createChild("camera");
    knightNode.attach(&knight);
    cameraNode.attach(&camera);
    knightNode.setTransform(glm::translate(glm::mat4(1.0f), glm::vec3(10, 0, -5)));
    cameraNode.setTransform(glm::translate(glm::mat4(1.0f), glm::vec3(10, 0, 0)));
    graph.update();

    knight.bind(&camera);
    knight.draw();
    EXPECT_EQ(centre(), glm::ivec4(255, 0, 255, 255)) << "right half, lower half of the picture; normal towards the camera";
    EXPECT_EQ(pixelAt(2, kSide / 2), glm::ivec4(0)) << "five units off, it does not fill the view";
}

} // namespace
