#include "assets/HellknightModel.h"

#include "assets/Library.h"
#include "assets/ModelImport.h"
#include "scene/Camera.h"
#include "scene/Mesh.h"
#include "scene/SceneGraph.h"
#include "testing/DataScratch.h"
#include "testing/GlFixture.h"

#include <glm/gtc/matrix_transform.hpp>

namespace {

/// A triangle that lies in the plane of x and z, its texture coordinates on the picture's lower right.
const std::string kKnight =
    "MD5Version 10\ncommandline \"\"\nnumJoints 1\nnumMeshes 1\n\njoints {\n\"origin\" -1 ( 0 0 0 ) ( 0 0 0 )\n}\n"
    "mesh {\nshader \"none\"\n"
    "numverts 3\nvert 0 ( 0.75 0.75 ) 0 1\nvert 1 ( 0.75 0.75 ) 1 1\nvert 2 ( 0.75 0.75 ) 2 1\nnumtris 1\ntri 0 0 1 2\n"
    "numweights 3\nweight 0 0 1 ( -1 0 -1 )\nweight 1 0 1 ( 1 0 -1 )\nweight 2 0 1 ( 0 0 2 )\n}\n";

TEST_F(GlTest, AHellknightStandsUpAndSetsItsUniformsForACameraItself)
{
    const DataScratch data;
    data.copyGameData();
    data.write("knight.md5mesh", kKnight);
    data.write("knight.MD5MESH", kKnight);
    data.writeTga("knight.tga", 2, 2, 3, [](int x, int y, int i) { return i == 0 ? 255 * x : i == 1 ? 255 * y : 255; });
    Library& library = *Library::getInstance();
    library.loadShader("TextureShader", "Shader/TextureShader.shader");
    library.loadTexture("Hellknight_Diffuse", "knight.tga");
    library.loadModel("Hellknight", "knight.md5mesh");

    HellknightModel knight;
    SceneGraph graph;
    Node& node = *graph.getRoot()->createChild("knight");
    node.attach(&knight);
    node.setTransform(glm::translate(glm::mat4(1.0f), glm::vec3(10, 0, -5)));
    graph.update();
    Camera camera(45, 1.3333334f, 0.1f, 1000, glm::vec3(-10, 0, 0)); // at x 10
    knight.bind(&camera);
    knight.draw();
    EXPECT_EQ(pixelAt(kSide / 2, kSide / 2 + 20), glm::ivec4(89, 0, 89, 255)) << "dark: its normals are not turned";
    EXPECT_EQ(pixelAt(2, kSide / 2), glm::ivec4(0)) << "five units off, it does not fill the view";
    EXPECT_EQ(importMesh("knight.MD5MESH")->positions.at(2), glm::vec3(0, 0, -2))
        << "the case of the name's end counts";
}

} // namespace
