#include "gpu/VertexAttributeList.h"

#include "support/DataCapturedLog.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Layout {
    std::vector<VertexAttribute> added;                    // in this order
    std::vector<std::pair<std::string, unsigned>> offsets; // bytes
    unsigned stride;                                       // bytes
};

class VertexLayout : public testing::TestWithParam<Layout> {};

TEST_P(VertexLayout, LiesInTheOrderOfTheNames)
{
    VertexAttributeList list;
    for (const VertexAttribute& attribute : GetParam().added) list.addAttribute(attribute);

    for (const auto& [name, offset] : GetParam().offsets) EXPECT_EQ(list.getAttributeOffset(name), offset) << name;
    EXPECT_EQ(list.getStride(), GetParam().stride);
    EXPECT_EQ(list.getAttributeOffset("absent"), GetParam().stride);
}

const VertexAttribute kPosition{ATTRIBUTE_VEC3, "position"}, kNormal{ATTRIBUTE_VEC3, "normal"}, kTexcoord{ATTRIBUTE_VEC2, "texcoord"};
const std::vector<std::pair<std::string, unsigned>> kModelOffsets{{"normal", 0}, {"position", 12}, {"texcoord", 24}};

INSTANTIATE_TEST_SUITE_P(Layouts, VertexLayout,
    testing::Values(Layout{{kPosition}, {{"position", 0}}, 12}, Layout{{kTexcoord, kPosition, kNormal}, kModelOffsets, 32},
        Layout{{kPosition, kNormal, kTexcoord}, kModelOffsets, 32},
        Layout{{{ATTRIBUTE_FLOAT, "ttl"}, {ATTRIBUTE_VEC4, "colour"}}, {{"colour", 0}, {"ttl", 16}}, 20},
        Layout{{kPosition, {ATTRIBUTE_FLOAT, "ttl"}, {ATTRIBUTE_VEC3, "velocity"}}, {{"position", 0}, {"ttl", 12}, {"velocity", 16}}, 28},
        Layout{{kPosition, {ATTRIBUTE_FLOAT, "position"}}, {{"position", 0}}, 12},
        Layout{{{ATTRIBUTE_VEC3, "b"}, {ATTRIBUTE_VEC2, "B"}}, {{"B", 0}, {"b", 8}}, 20}, Layout{{}, {}, 0}));

TEST(VertexAttributeListTest, ReportsANameThatIsNotInTheList)
{
    VertexAttributeList list;
    CapturedLog log;
    list.addAttribute(kTexcoord);
    const unsigned known = list.getAttributeByteSize("texcoord"), unknown = list.getAttributeByteSize("normal");

    EXPECT_EQ(log.text(), "DEBUG | Add Vertex Attribute texcoord\nWARNING | AttributeByteSize 0\n");
    EXPECT_EQ(known, 8u);
    EXPECT_EQ(unknown, 0u);
}

} // namespace
