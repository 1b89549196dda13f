#include "gpu/DrawCalls.h"

#include "TestPrograms.h"
#include "gpu/IndexBuffer.h"
#include "support/DataCapturedLog.h"
#include "support/GlErrors.h"
#include "support/GlFixture.h"

namespace {

const Stage kControl{GL_TESS_CONTROL_SHADER,
    "layout(vertices = 3) out; void main() { gl_out[gl_InvocationID].gl_Position = gl_in[gl_InvocationID].gl_Position;"
    "gl_TessLevelInner[0] = 2.0; gl_TessLevelOuter[0] = gl_TessLevelOuter[1] = gl_TessLevelOuter[2] = 2.0; }"};
const Stage kEvaluation{GL_TESS_EVALUATION_SHADER,
    "layout(triangles) in; void main() { gl_Position = gl_TessCoord.x * gl_in[0].gl_Position + gl_TessCoord.y * gl_in[1].gl_Position"
    " + gl_TessCoord.z * gl_in[2].gl_Position; }"};

/// Two triangles that cover the picture's left and right half: vertices 0 to 2 the left, 3 to 5 the right, both wider than their half
/// in height so that they fill it.
class DrawCallsTest : public GlTest {
protected:
    DrawCallsTest()
    {
        unsigned short rightHalf[] = {3, 4, 5};
        indices.setIndices(3, rightHalf, false);
    }

    ~DrawCallsTest() override { deleteVertexArray(vao); }

    static bool paintedLeft() { return pixelAt(2, kSide / 2).r > 0; }
    static bool paintedRight() { return pixelAt(kSide - 3, kSide / 2).r > 0; }

    Positions halves{{-1, -3, 0, 0, -1, 0, -1, 3, 0, 1, -3, 0, 0, -1, 0, 1, 3, 0}};
    VertexBuffer& vertices = halves.vertices;
    IndexBuffer indices;
    std::unique_ptr<Shaderprogram> plain = makeProgram({kPlainVertex, kWhiteFragment});
    GLuint vao = halves.layout.createVAO(plain.get(), &vertices);
};

TEST_F(DrawCallsTest, WithoutIndicesEveryVertexIsDrawnWithThemOnlyTheirs)
{
    plain->use();
    drawVertexArray(vao, GL_TRIANGLES, &vertices, &indices);
    EXPECT_FALSE(paintedLeft());
    EXPECT_TRUE(paintedRight());

    drawVertexArray(vao, GL_TRIANGLES, &vertices, nullptr);
    EXPECT_TRUE(paintedLeft());
    EXPECT_EQ(integer(GL_VERTEX_ARRAY_BINDING), 0);
}

TEST_F(DrawCallsTest, WhatCannotBeDrawnIsSkippedWithoutAGlError)
{
    CompilerErrorsExpected spoiled;
    const auto broken = makeProgram({kPlainVertex, kGarbage});
    const Shaderprogram empty;

    plain->use();
    drawVertexArray(0, GL_TRIANGLES, &vertices, &indices);
    drawVertexArray(vao, GL_TRIANGLES, nullptr, nullptr);
    for (const Shaderprogram* program : std::initializer_list<const Shaderprogram*>{broken.get(), &empty}) {
        plain->use();
        program->use();
        EXPECT_EQ(halves.layout.createVAO(program, &vertices), 0u);
        drawVertexArray(vao, GL_TRIANGLES, &vertices, &indices);
    }
    Shaderprogram::unuse();
    drawVertexArray(vao, GL_TRIANGLES, &vertices, &indices);
    EXPECT_EQ(paintedPixels(), 0);
}

TEST_F(DrawCallsTest, PatchesNeedTessellationStagesAndTheComplaintComesOnce)
{
    const auto tessellating = makeProgram({kPlainVertex, kControl, kEvaluation, kWhiteFragment});
    ASSERT_TRUE(tessellating->isUsable());
    plain->setSource("Shader/Plain.shader");

    CapturedLog log;
    plain->use();
    for (int frame = 0; frame < 3; ++frame) drawVertexArray(vao, GL_PATCHES, &vertices, &indices);
    EXPECT_EQ(log.text(), "ERROR | Shader/Plain.shader lacks the tessellation stages that its model needs\n");

    tessellating->use();
    drawVertexArray(vao, GL_TRIANGLES, &vertices, &indices);
    EXPECT_EQ(paintedPixels(), 0);
    drawVertexArray(vao, GL_PATCHES, &vertices, &indices);
    EXPECT_TRUE(paintedRight());
    EXPECT_FALSE(paintedLeft());
}

} // namespace
