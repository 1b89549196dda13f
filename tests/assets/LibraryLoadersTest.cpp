#include "assets/Library.h"
#include "gpu/Shaderprogram.h"
#include "gpu/Texture.h"
#include "scene/Mesh.h"
#include "testing/CapturedLog.h"
#include "testing/DataScratch.h"
#include "testing/GlErrors.h"
#include "testing/GlFixture.h"

#include <GL/glew.h>

#include <fstream>
#include <iterator>
#include <optional>

namespace {

const std::string kVertex = "#version 430 core\nin vec3 position;\nvoid main() { gl_Position = vec4(position, 1); }\n";
const std::string kFragment = "#version 430 core\nout vec4 colour;\nvoid main() { colour = vec4(1.0); }\n";
// The layout of the file into lines means nothing.
const std::string kProgram =
    "\n\n \tVERTEX_SHADER\r\n Shader/plain.vert\r\n\nFRAGMENT_SHADER   Shader/plain.frag  \r\n";

class LibraryLoadersTest : public GlTest {
protected:
    LibraryLoadersTest()
    {
        data.write("Shader/plain.vert", kVertex);
        data.write("Shader/plain.frag", kFragment);
    }

    /// A load starts with a name that the library has not met.
    static std::string freshName() { return "Program" + std::to_string(nextName++); }

    /// The program that a fresh load of the file registers; null when it registers none.
    Shaderprogram* loaded(const std::string& description)
    {
        const std::string name = freshName();
        library.loadShader(name, description);
        return library.getShaderprogram(name, false);
    }

    static std::string contentOf(const std::string& file)
    {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

    /// A program's description and the sources that it lists.
    static std::vector<std::string> filesOf(const std::string& description)
    {
        std::vector<std::string> files{description};
        std::ifstream words(description);
        for (std::string stage, source; words >> stage >> source;) files.push_back(source);
        return files;
    }

    static std::vector<GLuint> stagesOf(const Shaderprogram& program)
    {
        std::vector<GLuint> stages(2);
        glGetAttachedShaders(program.getHandle(), 2, nullptr, stages.data());
        return stages;
    }

    DataScratch data;
    Library& library = *Library::getInstance();

private:
    static inline int nextName = 0;
};

TEST_F(LibraryLoadersTest, EveryProgramOfTheGameIsUsableUntilAnyOfItsFilesIsSpoiledAndNamed)
{
    const CompilerErrorsExpected spoiled;
    data.copyGameData();
    int programs = 0;
    const std::vector<std::filesystem::path> all(std::filesystem::directory_iterator("Shader"), {});
    for (const std::string description : all) {
        if (!description.ends_with(".shader")) continue;
        ++programs;
        EXPECT_TRUE(loaded(description)->isUsable()) << description;

        for (const std::string& file : filesOf(description)) {
            const std::string whole = contentOf(file);
            const std::optional<std::string> spoilings[] = {
                std::nullopt, // removed
                "",
                whole.substr(0, whole.rfind('}')), // cut short
                "\x89PNG\r\n\x1a\n" + std::string(5000, '\xe4'),
                std::string(100000, '('),
            };
            for (const std::optional<std::string>& bytes : spoilings) {
                if (bytes == whole) continue; // a description has no brace to cut off
                std::filesystem::remove(file);
                if (bytes) data.write(file, *bytes);
                CapturedLog log;
                const Shaderprogram* program = loaded(description);
                EXPECT_EQ(log.count(file + '\n'), 1) << log.text();
                EXPECT_LE(log.count("ERROR | "), 2) << log.text();
                EXPECT_FALSE(log.contains(std::string(1, '\0')))
                    << "the compiler's messages go to the log up to their end";
                EXPECT_EQ(program != nullptr, log.contains("Linking program")) << file;
                EXPECT_FALSE(program && program->isUsable()) << file;
            }
            data.write(file, whole);
        }
    }
    EXPECT_GT(programs, 10);
}

TEST_F(LibraryLoadersTest, ALoadThatEndsEarlyGivesOneErrorAndRegistersNothing)
{
    std::filesystem::create_directory("folder");
    const std::pair<std::string, std::string> rows[] = {
        // text of the file, error
        {"VERTEX_SHADER Shader/plain.vert FRAGMENT_SHADER absent.frag", "couldn't open file: absent.frag\n"},
        {"VERTEX_SHADER folder", "couldn't open file: folder\n"},
        {"VERTEX_SHADER Shader/plain.vert FRAGMENT_SHADER", "couldn't open file: \n"},
        {"fragment_shader Shader/plain.frag", "unknown shader stage \"fragment_shader\" in any.shader\n"},
        {std::string("\x89PNG\x02\xff") + std::string(500, '\xe4'),
            "unknown shader stage \"?PNG" + std::string(36, '?') + "\" in any.shader\n"},
    };
    for (const auto& [text, error] : rows) {
        const std::string name = freshName();
        data.write("any.shader", text);
        CapturedLog log;
        library.loadShader(name, "any.shader");
        EXPECT_TRUE(log.contains("ERROR | " + error)) << log.text();
        EXPECT_EQ(log.count("ERROR | "), 1);
        EXPECT_EQ(library.getShaderprogram(name, false), nullptr);
    }
}

TEST_F(LibraryLoadersTest, AReloadKeepsTheObjectThroughABadFileAndBack)
{
    const std::string name = freshName();
    Shaderprogram* program = nullptr;
    std::vector<GLuint> oldStages;
    for (const std::string& text : {kProgram, std::string("VERTEX_SHADER absent.vert"), std::string(), kProgram}) {
        data.write("any.shader", text);
        library.loadShader(name, "any.shader");
        if (!program) program = library.getShaderprogram(name);
        ASSERT_EQ(library.getShaderprogram(name), program);
        EXPECT_EQ(program->isUsable(), text == kProgram) << text;
        for (const GLuint stage : oldStages) EXPECT_FALSE(glIsShader(stage));
        oldStages = stagesOf(*program);
    }
}

TEST_F(LibraryLoadersTest, AReloadedTextureKeepsItsObjectAndTheFirstModelOfANameStays)
{
    data.writeTga("picture.tga", 4, 4, 3, [](int, int, int) { return 50; });
    data.write("shape.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n");
    const auto load = [this](const char* picture) {
        library.loadTexture("Picture", picture);
        library.loadModel("Shape", "shape.obj");
        return std::pair(library.getTexture("Picture"), library.getMesh("Shape"));
    };
    const auto first = load("absent.tga");
    EXPECT_TRUE(first.first && first.second);
    EXPECT_EQ(load("picture.tga"), first);
}

} // namespace
