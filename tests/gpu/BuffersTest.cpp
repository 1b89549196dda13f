#include "TestPrograms.h"
#include "gpu/DrawCalls.h"
#include "gpu/IndexBuffer.h"
#include "support/DataCapturedLog.h"
#include "support/GlFixture.h"

namespace {

using BuffersTest = GlTest;

struct Winding {
    std::vector<unsigned short> given;
    bool flip;
    std::vector<unsigned short> stored;
};

TEST_F(BuffersTest, IndicesAreStoredAndTheirWindingFlippedInPlaceAndGoWithTheirBuffer)
{
    const Winding rows[] = {{{0, 1, 2, 3, 4, 5}, false, {0, 1, 2, 3, 4, 5}}, {{0, 1, 2, 65535, 4, 5, 6}, true, {0, 2, 1, 65535, 5, 4, 6}},
        {{0, 1}, true, {0, 1}}, {{}, true, {}}};
    GLuint name = 0;
    for (const Winding& row : rows) {
        std::vector<unsigned short> indices = row.given;
        IndexBuffer buffer;
        buffer.setIndices(static_cast<unsigned>(indices.size()), indices.data(), row.flip);
        EXPECT_EQ(buffer.getCount(), indices.size());
        EXPECT_EQ(indices, row.stored) << "the caller's array";
        EXPECT_EQ(contentOf<unsigned short>(buffer.getHandle()), row.stored);
        name = buffer.getHandle();
    }
    EXPECT_FALSE(glIsBuffer(name));
}

TEST_F(BuffersTest, VerticesAreInterleavedByNameAndUnwrittenAttributesAreZero)
{
    VertexAttributeList layout;
    layout.addAttribute({ATTRIBUTE_VEC2, "texcoord"});
    layout.addAttribute({ATTRIBUTE_VEC3, "position"});
    layout.addAttribute({ATTRIBUTE_FLOAT, "age"});
    VertexBuffer buffer(&layout, 2);
    const float positions[] = {1, 2, 3, 4, 5, 6}, texcoords[] = {7, 8, 9, 10};

    buffer.setAttributeData("texcoord", texcoords);
    buffer.setAttributeData("position", positions);
    CapturedLog log;
    buffer.setAttributeData("absent", positions);
    EXPECT_EQ(log.text(), "WARNING | AttributeByteSize 0\n");
    buffer.upload(GL_STATIC_DRAW);
    EXPECT_EQ(contentOf<float>(buffer.getHandle()), (std::vector<float>{0, 1, 2, 3, 7, 8, 0, 4, 5, 6, 9, 10}));

    buffer.setVertexCount(1);
    buffer.setAttributeData("texcoord", texcoords);
    buffer.upload(GL_STATIC_DRAW);
    EXPECT_EQ(contentOf<float>(buffer.getHandle()), (std::vector<float>{0, 0, 0, 0, 7, 8})) << "each upload starts afresh";
}

TEST_F(BuffersTest, AVertexArrayLeavesOutWhatTheProgramLacksAtTheFullLayoutsOffsets)
{
    const auto program = makeProgram({{GL_VERTEX_SHADER,
                                          "layout(location = 2) in vec3 normal; layout(location = 5) in vec2 texcoord;"
                                          "void main() { gl_Position = vec4(normal, texcoord.x); }"},
        kWhiteFragment});
    VertexAttributeList layout;
    layout.addAttribute({ATTRIBUTE_VEC3, "normal"});
    layout.addAttribute({ATTRIBUTE_VEC3, "position"});
    layout.addAttribute({ATTRIBUTE_VEC2, "texcoord"});
    VertexBuffer buffer(&layout, 3);
    buffer.upload(GL_STATIC_DRAW);

    CapturedLog log;
    const GLuint vao = layout.createVAO(program.get(), &buffer);
    EXPECT_EQ(log.text(), "WARNING | Attribute not found! position\nWARNING | Location for position not found, continue\n");

    EXPECT_EQ(integer(GL_VERTEX_ARRAY_BINDING), 0);
    glBindVertexArray(vao);
    const auto attribute = [](GLuint location, GLenum what) {
        GLint value = -1;
        glGetVertexAttribiv(location, what, &value);
        return value;
    };
    for (GLuint location = 0; location < 8; ++location)
        EXPECT_EQ(attribute(location, GL_VERTEX_ATTRIB_ARRAY_ENABLED), location == 2 || location == 5) << location;
    EXPECT_EQ(attribute(2, GL_VERTEX_ATTRIB_RELATIVE_OFFSET), 0);
    EXPECT_EQ(attribute(5, GL_VERTEX_ATTRIB_RELATIVE_OFFSET), 24);
    EXPECT_EQ(attribute(2, GL_VERTEX_ATTRIB_ARRAY_SIZE), 3);
    EXPECT_EQ(attribute(5, GL_VERTEX_ATTRIB_ARRAY_SIZE), 2);
    EXPECT_EQ(attribute(5, GL_VERTEX_ATTRIB_ARRAY_BUFFER_BINDING), static_cast<GLint>(buffer.getHandle()));
    GLint stride = 0;
    glGetIntegeri_v(GL_VERTEX_BINDING_STRIDE, 0, &stride);
    EXPECT_EQ(stride, 32);
    deleteVertexArray(vao);
}

} // namespace
