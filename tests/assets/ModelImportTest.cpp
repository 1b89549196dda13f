#include "assets/ModelImport.h"
#include "assets/Library.h"
#include "scene/Mesh.h"
#include "testing/CapturedLog.h"
#include "testing/DataScratch.h"
#include "testing/Near.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

const std::string kTriangle = "v 1 2 3\nv 4 5 6\nv 7 8 10\nf 1 2 3\n";

/// A mesh of so many vertices, all in use and no two alike.
std::string stripOf(int vertices)
{
    std::string file;
    for (int i = 0; i < vertices; ++i) file += "v " + std::to_string(i / 2) + " " + std::to_string(i % 2) + " 0\n";
    for (int i = 1; i + 2 <= vertices; ++i)
        file += "f " + std::to_string(i) + " " + std::to_string(i + 1) + " " + std::to_string(i + 2) + "\n";
    return file;
}

class ModelImportTest : public testing::Test {
protected:
    ModelImportTest() { data.copyGameData(); }

    /// The game's file of a camera, one thing in it replaced by another.
    static std::string cameraWith(const std::string& what, const std::string& by)
    {
        std::stringstream text;
        text << std::ifstream("Models/camera.dae").rdbuf();
        std::string file = text.str();
        return file.replace(file.find(what), what.size(), by); // throws when it isn't there
    }

    DataScratch data;
    Library& library = *Library::getInstance();
};

TEST_F(ModelImportTest, PositionsAreMirroredInZAndWhatTheFileLacksGetsItsDefault)
{
    data.write("Models/plain.obj", kTriangle);
    const auto mesh = importMesh("Models/plain.obj");
    ASSERT_TRUE(mesh);
    ASSERT_EQ(mesh->getVertexCount(), 3u);
    EXPECT_EQ(mesh->positions[0], glm::vec3(1, 2, -3));
    EXPECT_EQ(mesh->positions[2], glm::vec3(7, 8, -10));
    EXPECT_EQ(mesh->indices, (std::vector<unsigned short>{0, 1, 2})) << "the windings are not flipped";
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(glm::length(mesh->normals[i]), 1.0f, 1e-5f) << "smooth normals are made";
        EXPECT_EQ(mesh->tangents[i], glm::vec3(1, 0, 0));
        EXPECT_EQ(mesh->bitangents[i], glm::vec3(0, 0, 1));
        EXPECT_EQ(mesh->texcoords[i], glm::vec2(0, 0));
    }
}

TEST_F(ModelImportTest, TextureCoordinatesComeWithTangentsAndSharedCornersAreJoined)
{
    // a square in the xy plane whose u runs along y
    data.write("square.obj",
        "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nvt 0 0\nvt 0 1\nvt 1 1\nvt 1 0\nf 1/1 2/2 3/3\nf 1/1 3/3 4/4\n");
    const auto mesh = importMesh("square.obj");
    ASSERT_TRUE(mesh);
    EXPECT_EQ(mesh->getVertexCount(), 4u);
    EXPECT_EQ(mesh->indices.size(), 6u);
    for (std::size_t i = 0; i < mesh->positions.size(); ++i) {
        const glm::vec3& position = mesh->positions[i];
        EXPECT_TRUE(isNear(mesh->texcoords[i], glm::vec2(position.y, position.x)));
        EXPECT_TRUE(isNear(mesh->tangents[i], glm::vec3(0, 1, 0)));
        EXPECT_NEAR(std::abs(mesh->bitangents[i].x), 1.0f, 1e-4f);
    }
}

TEST_F(ModelImportTest, OnlyTheFirstMeshOfAFileCountsAndTheFirstFileOfAName)
{
    data.write("two.obj", "o first\n" + kTriangle + "o second\nv 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nf 4 5 6 7\n");
    data.write("other.obj", stripOf(5));
    library.loadModel("Two", "two.obj");
    Mesh* first = library.getMesh("Two");
    ASSERT_TRUE(first);
    EXPECT_EQ(first->getVertexCount(), 3u);

    library.loadModel("Two", "other.obj");
    EXPECT_EQ(library.getMesh("Two"), first);
}

TEST_F(ModelImportTest, ANodesOwnTransformationLeavesNoTrace)
{
    const auto before = importMesh("Models/camera.dae");
    data.write("moved.dae", cameraWith("<matrix sid=\"transform\">1 0 0 0", "<matrix sid=\"transform\">1 0 0 100"));
    const auto moved = importMesh("moved.dae");
    ASSERT_TRUE(before && moved);
    EXPECT_EQ(moved->positions, before->positions);
}

TEST_F(ModelImportTest, Md5MeshesAreStoodUpByTheCaseSensitiveEndOfTheirPath)
{
    const std::string model =
        "MD5Version 10\ncommandline \"\"\n\nnumJoints 1\nnumMeshes 1\n\n"
        "joints {\n\t\"origin\" -1 ( 0 0 0 ) ( 0 0 0 )\n}\n\n"
        "mesh {\n\tshader \"none\"\n\n\tnumverts 3\n\tvert 0 ( 0 0 ) 0 1\n\tvert 1 ( 1 0 ) 1 1\n\tvert 2 ( 0 1 ) 2 "
        "1\n\n"
        "\tnumtris 1\n\ttri 0 0 1 2\n\n\tnumweights 3\n\tweight 0 0 1 ( 1 2 3 )\n\tweight 1 0 1 ( 4 5 6 )\n"
        "\tweight 2 0 1 ( 7 8 10 )\n}\n";
    data.write("knight.md5mesh", model);
    data.write("knight.MD5MESH", model);
    const auto stood = importMesh("knight.md5mesh"), lying = importMesh("knight.MD5MESH");
    ASSERT_TRUE(stood);
    ASSERT_TRUE(lying);
    ASSERT_EQ(stood->getVertexCount(), lying->getVertexCount());
    for (std::size_t i = 0; i < lying->positions.size(); ++i) {
        const glm::vec3 file = lying->positions[i];
        EXPECT_EQ(stood->positions[i], glm::vec3(file.x, -file.z, file.y));
        EXPECT_EQ(stood->normals[i], lying->normals[i]) << "normals stay as they are";
    }
}

TEST_F(ModelImportTest, AMeshOfMoreVerticesThanIndicesReachIsRefused)
{
    data.write("largest.obj", stripOf(65536));
    data.write("tooLarge.obj", stripOf(65537));
    const auto largest = importMesh("largest.obj");
    ASSERT_TRUE(largest);
    ASSERT_EQ(largest->getVertexCount(), 65536u);
    EXPECT_EQ(*std::max_element(largest->indices.begin(), largest->indices.end()), 65535);

    CapturedLog log;
    library.loadModel("TooLarge", "tooLarge.obj");
    EXPECT_EQ(log.count("ERROR | "), 1);
    EXPECT_TRUE(log.contains("ERROR | mesh has more than 65536 vertices: tooLarge.obj\n"));
    EXPECT_EQ(library.getMesh("TooLarge", false), nullptr);
}

TEST_F(ModelImportTest, AFileWithoutAMeshGivesOneWarningThatNamesItAndRegistersNothing)
{
    data.write("garbage.dae", "\xff<COLLADA <<<" + std::string(5000, '\xc3'));
    data.write("noGeometry.dae", cameraWith("<instance_geometry url=\"#mesh-mesh\" name=\"mesh\"/>", ""));
    data.write("noIndex.dae", cameraWith("<p>0", "<p>77777"));
    data.write("noNumber.dae", cameraWith("<p>0", "<p>/")); // these three would hang or crash the importer
    data.write("noCount.dae", cameraWith("count=\"432\"", "cOunt=\"432\""));
    data.write("tooFar.dae", cameraWith("count=\"144\" stride=\"3\"", "count=\"3000000\" stride=\"3\""));
    data.write("narrow.dae", cameraWith("stride=\"3\"", "stride=\"1\""));
    data.write("hugeCount.dae", cameraWith("count=\"432\"", "count=\"99999999999999999999\""));
    data.write("picture.tga", "no model at all");
    std::filesystem::create_directory("folder.dae");
    for (const char* path : {"absent.dae", "garbage.dae", "noGeometry.dae", "noIndex.dae", "noNumber.dae",
             "noCount.dae", "tooFar.dae", "narrow.dae", "hugeCount.dae", "picture.tga", "folder.dae"}) {
        SCOPED_TRACE(path);
        CapturedLog log;
        library.loadModel("Spoiled", path);
        EXPECT_EQ(log.count("WARNING | "), 1) << log.text();
        EXPECT_LT(log.text().size(), 400u);
        EXPECT_EQ(log.count(path), 2) << "once announcing the load, once in the warning: " << log.text();
        EXPECT_EQ(library.getMesh("Spoiled", false), nullptr);
    }
}

TEST_F(ModelImportTest, AFileCutAnywhereEitherGivesAWholeMeshOrNone)
{
    const std::string whole = cameraWith("", "");
    CapturedLog quiet;
    for (std::size_t length = 0; length < whole.size(); length += 97) {
        data.write("cut.dae", whole.substr(0, length));
        const auto mesh = importMesh("cut.dae");
        if (!mesh) continue;
        for (const unsigned short index : mesh->indices)
            EXPECT_LT(index, mesh->getVertexCount()) << "cut at " << length;
    }
}

} // namespace
