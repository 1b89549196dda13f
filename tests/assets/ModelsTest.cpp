#include "assets/HellknightModel.h"
#include "assets/Library.h"
#include "assets/MeshGeometry.h"
#include "assets/PartyhatModel.h"
#include "gpu/Texture.h"
#include "scene/Camera.h"
#include "scene/Mesh.h"
#include "scene/SceneGraph.h"
#include "testing/DataScratch.h"
#include "testing/GlFixture.h"

#include <GL/glew.h>
#include <glm/gtc/matrix_transform.hpp>

namespace {

class ModelsTest : public GlTest {
protected:
    DataScratch data;
    Library& library = *Library::getInstance();
};

TEST_F(ModelsTest, EveryHatRebuildsTheSharedNormalsToTheSameResult)
{
    Mesh* shared = new Mesh();
    shared->positions = {{0, 0, 0}, {1, 0, 0}, {0, 0.8f, -0.6f}}; // seen clockwise, its normal is (0, -0.6, -0.8)
    shared->normals.assign(3, glm::vec3(9));
    shared->indices = {0, 1, 2};
    ASSERT_TRUE(library.insert("Partyhat", shared));

    const glm::vec4 gold(1.0f, 0.843137f, 0.0f, 1.0f);
    const PartyhatModel first(gold), second(gold), third(gold);
    EXPECT_NEAR(shared->normals[0].y, 0.8f, 1e-5f);
    EXPECT_NEAR(shared->normals[0].z, -0.6f, 1e-5f);
    const std::vector<float> vertices = contentOf<float>(first.vertexBuffer->getHandle());
    ASSERT_EQ(vertices.size(), 18u);
    EXPECT_NEAR(vertices[1], 0.8f, 1e-5f) << "normals lie before positions";
    EXPECT_EQ(contentOf<float>(third.vertexBuffer->getHandle()), vertices);
}

TEST_F(ModelsTest, AHellknightSetsItsUniformsForTheCameraItself)
{
    data.copyGameData();
    data.writeTga("knight.tga", 2, 2, 3, [](int x, int y, int i) { return i == 0 ? 255 * x : i == 1 ? 255 * y : 255; });
    library.loadShader("TextureShader", "Shader/TextureShader.shader");
    Mesh* mesh = new Mesh();
    mesh->positions = {{-1, -1, 0}, {-1, 1, 0}, {1, 1, 0}, {1, -1, 0}}; // clockwise towards +z
    mesh->normals.assign(4, glm::vec3(0, 0, 1));
    mesh->texcoords.assign(4, glm::vec2(0.75f, 0.25f));
    mesh->indices = {0, 1, 2, 0, 2, 3};
    ASSERT_TRUE(library.insert("Hellknight", mesh));

    SceneGraph graph;
    HellknightModel knight;
    Camera camera(45, 1.3333334f, 0.1f, 1000, glm::vec3(0));
    Node &knightNode = *graph.getRoot()->createChild("knight"), &cameraNode = *graph.getRoot()->createChild("camera");
    knightNode.attach(&knight);
    cameraNode.attach(&camera);
    knightNode.setTransform(glm::translate(glm::mat4(1.0f), glm::vec3(10, 0, -5)));
    cameraNode.setTransform(glm::translate(glm::mat4(1.0f), glm::vec3(10, 0, 0)));
    graph.update();

    glEnable(GL_CULL_FACE);
    glCullFace(GL_FRONT);
    Texture other;
    other.load("knight.tga");
    other.bind();
    knight.bind(&camera);
    knight.draw();
    EXPECT_EQ(pixelAt(kSide / 2, kSide / 2), glm::ivec4(0, 0, 0, 255))
        << "its texture is missing; another one was left in its place";

    library.loadTexture("Hellknight_Diffuse", "knight.tga");
    knight.bind(&camera);
    knight.draw();
    EXPECT_EQ(pixelAt(kSide / 2, kSide / 2), glm::ivec4(255, 0, 255, 255))
        << "right half, lower half of the picture; facing the camera";
    EXPECT_EQ(pixelAt(2, kSide / 2), glm::ivec4(0)) << "five units off, it does not fill the view";
}

} // namespace
