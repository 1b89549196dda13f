#include "RenderFixture.h"

#include "render/Light.h"
#include "render/ShadowCache.h"
#include "render/ShadowMappingRender.h"
#include "support/Near.h"
#include "support/TemporaryFolder.h"

#include <glm/gtc/constants.hpp>

#include <algorithm>
#include <random>

namespace {

constexpr glm::ivec2 kSize(512, 384); // texels, in place of the renderer's 4096 x 3072
constexpr GLuint kFarthest = 0xFFFFFFFFu;

std::vector<GLuint> depthsOf(GLuint texture, const glm::ivec2& size)
{
    std::vector<GLuint> result(static_cast<std::size_t>(size.x) * static_cast<std::size_t>(size.y));
    glBindTexture(GL_TEXTURE_2D, texture);
    glGetTexImage(GL_TEXTURE_2D, 0, GL_DEPTH_COMPONENT, GL_UNSIGNED_INT, result.data());
    return result;
}

/// A light depth texture with its framebuffer.
struct Target {
    TargetTexture texture{GL_DEPTH_COMPONENT24, GL_DEPTH_COMPONENT, GL_FLOAT, kSize};
    Framebuffer framebuffer{nullptr, &texture};

    std::vector<GLuint> depths() const { return depthsOf(texture.getHandle(), kSize); }
};

class ShadowTest : public RenderTest {
protected:
    /// Clears and draws every caster.
    void drawAfresh(Target& target)
    {
        graph.update();
        graph.accept(&shadows);
        target.framebuffer.bind();
        glViewport(0, 0, kSize.x, kSize.y);
        glScissor(0, 0, kSize.x, kSize.y);
        glClear(GL_DEPTH_BUFFER_BIT);
        shadows.render();
    }

    /// Texels that a caster covers, the middle of them, and the least depth.
    struct Covered {
        int texels = 0;
        glm::vec2 middle{0};
        GLuint nearest = kFarthest;
    };
    Covered covered()
    {
        drawAfresh(fresh);
        const std::vector<GLuint> depths = fresh.depths();
        glm::ivec2 low = kSize, high(0);
        Covered result;
        for (int i = 0; i < kSize.x * kSize.y; ++i) {
            const GLuint depth = depths[static_cast<std::size_t>(i)];
            if (depth == kFarthest) continue;
            const glm::ivec2 texel(i % kSize.x, i / kSize.x);
            low = glm::min(low, texel);
            high = glm::max(high, texel + 1);
            result.nearest = std::min(result.nearest, depth);
            ++result.texels;
        }
        result.middle = 0.5f * glm::vec2(low + high);
        return result;
    }

    ShadowMappingRender shadows;
    Target fresh;
};

TEST_F(ShadowTest, TheLightCoversSixHundredUnitsAroundTheOriginWithZToTheSide)
{
    struct Place {
        glm::vec3 position;
        bool inside;
        glm::vec2 texel; ///< where it lies, if inside
    };
    const Place places[] = {
        {{0, 0, 299}, true, {0.5f, 192}}, {{0, 0, -299}, true, {511.5f, 192}}, {{0, 0, 301}, false, {}},
        {{-100, 0, 0}, true, {256, 192 + 95.8f * 0.64f}}, // up is along -x
    };
    BoxModel& box = addBox(glm::mat4(1.0f));
    for (const Place& place : places) {
        SCOPED_TRACE(glm::to_string(place.position));
        box.getNode()->setTransform(glm::scale(glm::translate(glm::mat4(1.0f), place.position), {3, 3, 0.9f}));
        const Covered result = covered();
        ASSERT_EQ(result.texels > 0, place.inside);
        EXPECT_TRUE(!place.inside || isNear(result.middle, place.texel, 1.5f)) << glm::to_string(result.middle);
    }
}

TEST_F(ShadowTest, NearerToTheLightIsLessDeep)
{
    BoxModel& box = addBox(at(0, 0, 0));
    const GLuint low = covered().nearest;
    box.getNode()->setTransform(at(14.37f, 50, 0)); // along the light
    EXPECT_LT(covered().nearest, low - kFarthest / 10);
}

TEST_F(ShadowTest, DrawsWhatCastsAsTrianglesAndNothingElse)
{
    BoxModel& box = addBox(glm::scale(glm::mat4(1.0f), glm::vec3(20)));
    const int asItIs = covered().texels;
    ASSERT_GT(asItIs, 100);

    box.drawMode = GL_PATCHES;
    EXPECT_EQ(covered().texels, asItIs) << "the model's own primitive type was consulted";
    box.castsShadow = false;
    EXPECT_EQ(covered().texels, 0);
    box.castsShadow = true;
    shadows.releaseModel(&box);
    EXPECT_EQ(covered().texels, asItIs) << "a walk registers again what is still in the scene";
    box.vao = 0;
    EXPECT_EQ(covered().texels, 0);
}

class ShadowCacheTest : public ShadowTest {
protected:
    ShadowCacheTest() : random(20) {}

    float pick(float low, float high) { return std::uniform_real_distribution<float>(low, high)(random); }

    /// Somewhere, partly over the edges, leaning, scaled differently along each axis, now and then sheared by a parent's scale.
    glm::mat4 anyPose()
    {
        glm::mat4 pose = at(pick(-330, 330), pick(-40, 40), pick(-330, 330));
        if (pick(0, 1) < 0.3f) pose = glm::scale(pose, glm::vec3(1, 1, 4));
        pose = glm::rotate(pose, pick(0, glm::two_pi<float>()), glm::normalize(glm::vec3(pick(-1, 1), 1, pick(-1, 1))));
        return glm::scale(pose, glm::vec3(pick(2, 20), pick(2, 20), pick(2, 20)));
    }

    BoxModel& addCaster(const glm::mat4& pose, bool isStatic = false)
    {
        BoxModel& box = addBox(pose);
        box.boundingRadius = glm::root_three<float>();
        box.isStatic = isStatic;
        return box;
    }
    BoxModel& addStatic(const glm::mat4& pose) { return addCaster(pose, true); }

    /// A frame by the cache; whether its texture is, bit by bit, what drawing everything afresh gives.
    testing::AssertionResult frameIsRight()
    {
        graph.update();
        graph.accept(&shadows);
        cache.draw(shadows);
        const std::vector<GLuint> actual = cached.depths();
        drawAfresh(fresh);
        const std::vector<GLuint> expected = fresh.depths();
        const auto index = std::mismatch(actual.begin(), actual.end(), expected.begin()).first - actual.begin();
        if (actual == expected) return testing::AssertionSuccess();
        return testing::AssertionFailure() << "first differs at texel (" << index % kSize.x << ", " << index / kSize.x << ")";
    }

    void remove(BoxModel& box)
    {
        box.getNode()->destroy();
        shadows.releaseModel(&box);
    }

    Target cached;
    ShadowCache cache{cached.texture, cached.framebuffer};
    std::mt19937 random;
};

TEST_F(ShadowCacheTest, EqualsAFreshPictureWhileCastersMoveRestComeAndGo)
{
    addStatic(glm::scale(at(0, -20, 0), {250, 5, 200}));
    std::deque<BoxModel*> moving;
    for (int i = 0; i < 8; ++i) moving.push_back(&addCaster(anyPose()));
    for (int i = 0; i < 60; ++i) {
        for (BoxModel* box : moving)
            if (pick(0, 1) < 0.6f) box->getNode()->setTransform(anyPose());
        if (i % 7 == 3) moving.push_back(&addCaster(anyPose()));
        if (i % 7 == 6) {
            remove(*moving.front());
            moving.pop_front();
        }
        ASSERT_TRUE(frameIsRight()) << "frame " << i;
    }
}

TEST_F(ShadowCacheTest, EqualsAFreshPictureAfterEveryKindOfChange)
{
    TemporaryFolder folder;
    BoxModel& ground = addStatic(glm::scale(at(0, -20, 0), {250, 5, 200}));
    BoxModel& wall = addStatic(glm::scale(at(50, 0, 50), {10, 30, 40}));
    BoxModel& car = addCaster(glm::scale(at(0, 0, 0), glm::vec3(15)));
    BoxModel& unknown = addCaster(glm::scale(at(-90, 0, 90), glm::vec3(12)));

    const auto place = [](BoxModel& box, const glm::mat4& pose, float scale) {
        box.getNode()->setTransform(glm::scale(pose, glm::vec3(scale)));
    };
    const auto reloadDepthProgram = [&folder](const char* position) {
        const std::string vertex = folder.write("a.vert",
            std::string("#version 430 core\nlayout(location = 0) in vec3 position; uniform mat4 mvp;\n") +
                "void main() { gl_Position = mvp * vec4(" + position + ", 1.0); }");
        const std::string fragment = folder.write("a.frag", "#version 430 core\nvoid main() {}");
        const std::string program = folder.write("a.shader", "VERTEX_SHADER " + vertex + "\nFRAGMENT_SHADER " + fragment + "\n");
        Library::getInstance()->loadShader("ShadowDepth", program);
    };
    const std::pair<const char*, std::function<void()>> changes[] = {{"first frame", [] {}},
        {"a static caster moves", [&] { place(wall, at(-80, 0, 20), 20); }}, {"a static caster goes", [&] { remove(wall); }},
        {"a static caster comes", [&] { addStatic(glm::scale(at(120, 0, -120), glm::vec3(20))); }},
        {"a static caster casts no more", [&] { ground.castsShadow = false; }}, {"and casts again", [&] { ground.castsShadow = true; }},
        {"bounds become unknown", [&] { unknown.boundingRadius = 0; }}, {"and it moves", [&] { place(unknown, at(90, 0, 0), 12); }},
        {"and goes", [&] { remove(unknown); }}, {"a moving caster rests for good", [&] { car.isStatic = true; }},
        {"and drives off",
            [&] {
                car.isStatic = false;
                place(car, at(30, 0, -60), 15);
            }},
        {"somebody else drew",
            [&] {
                cached.framebuffer.bind();
                glClear(GL_DEPTH_BUFFER_BIT);
                cache.invalidate();
            }},
        {"another depth program", [&] { reloadDepthProgram("position * 0.5"); }},
        {"one that does not link", [&] { Library::getInstance()->getShaderprogram("ShadowDepth")->createProgram(); }},
        {"the right one again", [&] { Library::getInstance()->loadShader("ShadowDepth", "Shader/ShadowDepth.shader"); }}};
    for (const auto& [name, change] : changes) {
        change();
        EXPECT_TRUE(frameIsRight()) << "after: " << name;
        EXPECT_TRUE(frameIsRight()) << "a frame after: " << name;
    }
}

TEST_F(ShadowCacheTest, TheRenderersTextureIsRightAfterWireframeFrames)
{
    BoxModel& box = addCaster(glm::scale(at(0, 0, 0), glm::vec3(20)));
    addWholeWindow(at(0, 0, 100));
    frame();
    renderer().toggleWireframe();
    box.getNode()->setTransform(glm::scale(at(0, 0, 100), glm::vec3(20)));
    frame();
    renderer().toggleWireframe();
    frame();

    constexpr glm::ivec2 kFull(4096, 3072);
    const std::vector<GLuint> depths = depthsOf(renderer().getLightDepthTexture(), kFull);
    const auto depthAt = [&](const glm::vec3& world) {
        const glm::ivec2 texel = glm::ivec2(glm::vec2(biasedLightViewProjection() * glm::vec4(world, 1)) * glm::vec2(kFull));
        return depths[static_cast<std::size_t>(texel.y) * kFull.x + static_cast<std::size_t>(texel.x)];
    };
    EXPECT_EQ(depthAt({0, 0, 0}), kFarthest) << "where the box was";
    EXPECT_LT(depthAt({0, 0, 100}), kFarthest) << "where the box is";
}

} // namespace
