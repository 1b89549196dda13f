#include "gpu/Shaderprogram.h"

#include "TestPrograms.h"
#include "gpu/Texture.h"
#include "gpu/Uniform_Color.h"
#include "gpu/Uniform_Texture.h"
#include "support/DataCapturedLog.h"
#include "support/GlErrors.h"
#include "support/GlFixture.h"

#include <glm/gtc/type_ptr.hpp>

namespace {

const Stage kAllUniforms{GL_VERTEX_SHADER,
    "uniform float number; uniform vec3 window; uniform vec4 color; uniform mat3 normalMatrix; uniform mat4 view; uniform sampler2D tex;"
    "in vec3 position; in vec3 unused;"
    "void main() { gl_Position = view * vec4(normalMatrix * (position + window), number) + color + texture(tex, position.xy); }"};

class ShaderprogramTest : public GlTest {
protected:
    template <class T>
    static T valueOf(const Shaderprogram& program, const char* name)
    {
        T value(0.0f);
        glGetUniformfv(program.getHandle(), glGetUniformLocation(program.getHandle(), name), glm::value_ptr(value));
        return value;
    }

    static float numberOf(const Shaderprogram& program, const char* name)
    {
        float value = 0;
        glGetUniformfv(program.getHandle(), glGetUniformLocation(program.getHandle(), name), &value);
        return value;
    }
};

template <class T>
struct Constant : IUniform<T> {
    explicit Constant(T v) : value(v) {}
    T get() override { return value; }
    T value;
};

TEST_F(ShaderprogramTest, EveryKindOfUniformArrivesDirectlyAndFromASource)
{
    const auto program = makeProgram({kAllUniforms, kWhiteFragment});
    const glm::mat3 rotation(0, 1, 2, 3, 4, 5, 6, 7, 8);
    const glm::mat4 view(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16);
    program->use();

    program->setUniform("number", 2.5f);
    program->setUniform("window", glm::vec3(1, 2, 3));
    program->setUniform("color", glm::vec4(1, 2, 3, 4));
    program->setUniform("normalMatrix", rotation);
    program->setUniform("view", view, true);
    EXPECT_EQ(numberOf(*program, "number"), 2.5f);
    EXPECT_EQ(valueOf<glm::vec3>(*program, "window"), glm::vec3(1, 2, 3));
    EXPECT_EQ(valueOf<glm::vec4>(*program, "color"), glm::vec4(1, 2, 3, 4));
    EXPECT_EQ(valueOf<glm::mat3>(*program, "normalMatrix"), rotation);
    EXPECT_EQ(valueOf<glm::mat4>(*program, "view"), glm::transpose(view));

    Constant<glm::mat4> viewSource(view);
    Constant<glm::mat3> rotationSource(rotation * 2.0f);
    Uniform_Color color(glm::vec4(0.5f));
    program->setUniform("view", UniformVariant(&viewSource));
    program->setUniform("normalMatrix", UniformVariant(&rotationSource));
    program->setUniform("color", UniformVariant(&color));
    EXPECT_EQ(valueOf<glm::mat4>(*program, "view"), view);
    EXPECT_EQ(valueOf<glm::mat3>(*program, "normalMatrix"), rotation * 2.0f);
    EXPECT_EQ(valueOf<glm::vec4>(*program, "color"), glm::vec4(0.5f));

    program->setUniform("view", UniformVariant());
    EXPECT_EQ(valueOf<glm::mat4>(*program, "view"), view) << "an empty variant sets nothing";
}

TEST_F(ShaderprogramTest, ATextureUniformLeavesItsUnitActiveAndBound)
{
    const auto program = makeProgram({kAllUniforms, kWhiteFragment});
    Texture texture;
    texture.generate();
    Uniform_Texture source(&texture, 3);
    program->use();
    program->setUniform("tex", UniformVariant(&source));

    EXPECT_EQ(integer(GL_ACTIVE_TEXTURE), GL_TEXTURE0 + 3);
    EXPECT_EQ(integer(GL_TEXTURE_BINDING_2D), static_cast<GLint>(texture.getHandle()));
    GLint unit = -1;
    glGetUniformiv(program->getHandle(), glGetUniformLocation(program->getHandle(), "tex"), &unit);
    EXPECT_EQ(unit, 3);

    program->setUniform("tex", static_cast<const Texture*>(nullptr), 3);
    EXPECT_EQ(integer(GL_TEXTURE_BINDING_2D), 0) << "a texture that failed to load must not leave another one in its place";
}

TEST_F(ShaderprogramTest, NamesThatTheProgramLacksAreSilentForUniformsAndReportedForAttributes)
{
    const auto program = makeProgram({kAllUniforms, kWhiteFragment});
    program->use();
    CapturedLog log;
    program->setUniform("absent", 1.0f);
    program->setUniform("absent", glm::mat4(1.0f));
    program->setUniform("absent", static_cast<const Texture*>(nullptr), 0);
    const GLint present = program->getAttribLocation("position"), removed = program->getAttribLocation("unused");

    EXPECT_EQ(log.text(), "WARNING | Attribute not found! unused\n");
    EXPECT_GE(present, 0);
    EXPECT_EQ(removed, -1);
}

TEST_F(ShaderprogramTest, ASetterWritesToTheCurrentProgram)
{
    const auto first = makeProgram({kAllUniforms, kWhiteFragment}), second = makeProgram({kAllUniforms, kWhiteFragment});
    second->use();
    first->setUniform("number", 7.0f);
    EXPECT_EQ(numberOf(*first, "number"), 0.0f);
    EXPECT_EQ(numberOf(*second, "number"), 7.0f);
}

/// Programs that cannot be used, whatever the reason, must be reported once and then be harmless.
TEST_F(ShaderprogramTest, AProgramThatDoesNotLinkIsReportedAndHarmless)
{
    const std::vector<Stage> rows[] = {{}, {kPlainVertex, kGarbage}, {kPlainVertex, {GL_FRAGMENT_SHADER, ""}},
        {{GL_VERTEX_SHADER, "out vec3 a; void main() { a = vec3(1.0); gl_Position = vec4(a, 1.0); }"},
            {GL_FRAGMENT_SHADER, "in vec2 a; out vec4 c; void main() { c = a.xyxy; }"}}};
    for (const std::vector<Stage>& stages : rows) {
        SCOPED_TRACE(&stages - rows);
        CompilerErrorsExpected spoiled;
        Shaderprogram program;
        program.setSource("Shader/Spoiled.shader");
        CapturedLog log;
        build(program, stages);
        EXPECT_EQ(log.count("ERROR | couldn't link program: Shader/Spoiled.shader\n"), 1);
        EXPECT_FALSE(program.isUsable());

        CapturedLog afterwards;
        program.use();
        EXPECT_EQ(integer(GL_CURRENT_PROGRAM), 0);
        EXPECT_EQ(Shaderprogram::current(), nullptr);
        program.setUniform("color", glm::vec4(1.0f));
        program.setUniform("tex", static_cast<const Texture*>(nullptr), 0);
        EXPECT_EQ(program.getAttribLocation("position"), -1);
        EXPECT_EQ(afterwards.text(), "");
    }
}

TEST_F(ShaderprogramTest, AReloadReplacesAndDeletesTheProgramObject)
{
    const auto program = makeProgram({kAllUniforms, kWhiteFragment});
    const GLuint old = program->getHandle();
    program->use();
    program->setUniform("number", 7.0f);

    program->createProgram();
    EXPECT_FALSE(glIsProgram(old)) << "neither kept nor still current";
    EXPECT_FALSE(program->isUsable());
    program->use();
    EXPECT_EQ(integer(GL_CURRENT_PROGRAM), 0);

    build(*program, {kAllUniforms, kWhiteFragment});
    program->use();
    EXPECT_EQ(integer(GL_CURRENT_PROGRAM), static_cast<GLint>(program->getHandle()));
    EXPECT_EQ(numberOf(*program, "number"), 0.0f) << "values do not carry over";
}

} // namespace
