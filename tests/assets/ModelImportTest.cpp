#include "assets/ModelImport.h"
#include "assets/Library.h"
#include "scene/Mesh.h"
#include "testing/CapturedLog.h"
#include "testing/DataScratch.h"
#include "testing/Near.h"

#include <fstream>
#include <iterator>

namespace {

/// Return a mesh file of so many vertices, all in use and no two alike.
std::string stripOf(int vertices)
{
    std::string file;
    for (int i = 0; i < vertices; ++i)
        file += "v " + std::to_string(i / 2) + " " + std::to_string(i % 2) + (i < 2 ? " 0\n" : " 0\nf -3 -2 -1\n");
    return file;
}

/// Return the game's file of a camera, one thing in it replaced by another.
std::string cameraWith(const std::string& what, const std::string& by)
{
    std::ifstream file("Models/camera.dae");
    std::string text(std::istreambuf_iterator<char>(file), {});
    return text.replace(text.find(what), what.size(), by); // throws when it isn't there
}

class ModelImportTest : public testing::Test {
protected:
    ModelImportTest() { data.copyGameData(); }

    /// Return the mesh of a file of that text; an empty one when the import fails.
    Mesh imported(const std::string& path, const std::string& text) const
    {
        data.write(path, text);
        const auto mesh = importMesh(path);
        return mesh ? *mesh : Mesh();
    }

    DataScratch data;
};

TEST_F(ModelImportTest, TakesTheFirstMeshMirroredInZAndMakesUpForWhatItLacks)
{
    const Mesh mesh = imported("two.obj", "v 1 2 3\nv 4 5 6\nv 7 8 10\nf 1 2 3\no second\n" + stripOf(9));
    EXPECT_EQ(mesh.positions, (std::vector<glm::vec3>{{1, 2, -3}, {4, 5, -6}, {7, 8, -10}}));
    EXPECT_EQ(mesh.indices, (std::vector<unsigned short>{0, 1, 2})) << "the windings are not flipped";
    EXPECT_NEAR(glm::length(mesh.normals.at(0)), 1, 1e-5f) << "smooth normals are made";
    EXPECT_EQ(mesh.tangents, std::vector(3, glm::vec3(1, 0, 0)));
    EXPECT_EQ(mesh.bitangents, std::vector(3, glm::vec3(0, 0, 1)));
    EXPECT_EQ(mesh.texcoords, std::vector(3, glm::vec2(0)));

    const Mesh moved = imported("moved.dae", cameraWith("<matrix sid=\"transform\">1", "<matrix sid=\"transform\">9"));
    EXPECT_EQ(moved.positions, importMesh("Models/camera.dae")->positions) << "transformations of nodes do not count";

    const Mesh square = imported("square.obj", // in the xy plane, its u along y
        "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nvt 0 0\nvt 0 1\nvt 1 1\nvt 1 0\nf 1/1 2/2 3/3\nf 1/1 3/3 4/4\n");
    EXPECT_EQ(square.getVertexCount(), 4u) << "shared corners are joined";
    EXPECT_TRUE(isNear(square.tangents.at(1), glm::vec3(0, 1, 0)));
    EXPECT_TRUE(isNear(glm::abs(square.bitangents.at(1)), glm::vec3(1, 0, 0)));
    EXPECT_EQ(imported("largest.obj", stripOf(65536)).getVertexCount(), 65536u) << "as many as indices reach";
}

TEST_F(ModelImportTest, AFileWithoutAMeshGivesOneLineThatNamesItAndRegistersNothing)
{
    const std::pair<std::string, std::string> rows[] = {
        {"absent.dae", ""},
        {"picture.tga", "no model at all"},
        {"garbage.dae", "\xff<COLLADA <<<" + std::string(5000, '\xc3')},
        {"noGeometry.dae", cameraWith("<instance_geometry url=\"#mesh-mesh\" name=\"mesh\"/>", "")},
        {"noPosition.dae", cameraWith("count=\"432\">", "count=\"432\">abc ")}, // the importer quotes the whole array
        {"noIndex.dae", cameraWith("<p>0", "<p>77777")},
        {"noNumber.dae", cameraWith("<p>0", "<p>/")}, // this one and the next four would hang or crash the importer
        {"noCount.dae", cameraWith("count=\"432\"", "cOunt=\"432\"")},
        {"tooFar.dae", cameraWith("count=\"144\" stride=\"3\"", "count=\"3000000\" stride=\"3\"")},
        {"narrow.dae", cameraWith("stride=\"3\"", "stride=\"1\"")},
        {"hugeCount.dae", cameraWith("count=\"432\"", "count=\"99999999999999999999\"")},
        {"tooLarge.obj", stripOf(65537)},
    };
    for (const auto& [path, text] : rows) {
        if (!text.empty()) data.write(path, text);
        CapturedLog log;
        Library::getInstance()->loadModel("Spoiled", path);
        EXPECT_EQ(log.count("WARNING | ") + log.count("ERROR | mesh has more than 65536 vertices: "), 1) << log.text();
        EXPECT_EQ(log.count(path), 2) << "once announcing the load, once in the complaint: " << log.text();
        EXPECT_LT(log.text().size(), 400u);
        EXPECT_FALSE(log.contains("bad_alloc")) << "reading stops before the memory is full";
        EXPECT_EQ(Library::getInstance()->getMesh("Spoiled", false), nullptr);
    }
}

TEST_F(ModelImportTest, TheGamesModelsKeepToTheTrianglesThatASoftwareDriverDrawsWithEase)
{
    for (const auto& [name, most] : {std::pair{"duck", 1500u}, {"partyhat", 400u}, {"camera", 300u}})
        EXPECT_LE(importMesh(std::string("Models/") + name + ".dae")->indices.size(), 3 * most) << name;
}

} // namespace
