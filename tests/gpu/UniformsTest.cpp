#include "gpu/GlobalUniform.h"
#include "gpu/Uniform_Color.h"
#include "gpu/Uniform_Texture.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <type_traits>

namespace {

/// Which of the four kinds of source the table's reader is sent to decides which GL call is made.
TEST(UniformVariantTest, KeepsTheKindOfItsSourceAndSharesIt)
{
    struct Counter : GlobalUniform<glm::mat3> {
        using GlobalUniform::GlobalUniform;
        glm::mat3 get() override { return glm::mat3(static_cast<float>(++asked)); }
        int asked = 0;
    } counter{nullptr};
    Uniform_Color color(glm::vec4(0.1f, 0.2f, 0.3f, 1.0f));
    Uniform_Texture texture(nullptr, 3);

    std::map<std::string, UniformVariant> table;
    table["normalMatrix"] = &counter;
    table["Color"] = &color;
    table["color"] = &texture;
    ASSERT_EQ(table.size(), 3u) << "names that differ in case are different uniforms";
    EXPECT_EQ(table["normalMatrix"].which(), 1);
    EXPECT_EQ(table["Color"].which(), 2);
    EXPECT_EQ(table["color"].which(), 3);
    EXPECT_EQ(table["unset"], UniformVariant(static_cast<IUniform<glm::mat4>*>(nullptr)));

    const UniformVariant copy = table["normalMatrix"];
    EXPECT_EQ(boost::get<IUniform<glm::mat3>*>(copy)->get()[0][0], 1.0f);
    EXPECT_EQ(boost::get<IUniform<glm::mat3>*>(table["normalMatrix"])->get()[0][0], 2.0f) << "a copy reads the same source";
    EXPECT_EQ(boost::get<IUniform<TextureUniform>*>(table["color"])->get().unit, 3);
}

} // namespace
