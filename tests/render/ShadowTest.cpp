#include "RenderFixture.h"

#include "assets/BallModel.h"
#include "render/ShadowCache.h"
#include "render/ShadowMappingRender.h"

#include <glm/gtc/constants.hpp>

#include <algorithm>
#include <random>

namespace {

/// A ball high above ground, seen from above by a camera that looks along -y with -z up.
class ShadowPicture : public RenderTest {
protected:
    static constexpr float kHeight = 20, kEye = 60; // units above the ground: of the ball, of the camera

    void moveTo(const glm::vec3& middle)
    {
        ground.getNode()->setTransform(glm::scale(glm::translate(glm::mat4(1.0f), middle), glm::vec3(60, 1, 60)));
        ball.getNode()->setTransform(glm::scale(glm::translate(glm::mat4(1.0f), middle + glm::vec3(0, kHeight, 0)),
            glm::vec3(2)));
        camera.getNode()->setTransform(glm::inverse(glm::lookAt(middle + glm::vec3(0, kEye, 0), middle,
            glm::vec3(0, 0, -1))));
    }

    /// Where the ground lies in shadow, of these three places to the left and right of the one below the ball, in units
    /// along x.
    std::vector<int> dark() const
    {
        std::vector<int> places;
        for (const int x : {-12, -6, 6}) {
            const double pixels = 384 / std::tan(glm::radians(22.5)) * x / kEye;
            if (windowPixel(512 + static_cast<int>(pixels), 384).g < 150) places.push_back(x);
        }
        return places;
    }

    BallModel& ground{add<BallModel>(glm::mat4(1.0f), glm::vec4(1))}; // flattened
    BallModel& ball{add<BallModel>(glm::mat4(1.0f), glm::vec4(1))};
    const Camera& camera{*addWholeWindow().camera};
};

TEST_F(ShadowPicture, FallsAlongTheLightWhereverThereIsGround)
{
    for (const glm::vec3& middle :
        {glm::vec3(0), glm::vec3(0, -30, 0), glm::vec3(0, 0, 250), glm::vec3(240, 0, -250)}) {
        moveTo(middle);
        frame();
        EXPECT_EQ(dark(), std::vector<int>{-6}) << middle.x << ", " << middle.y << ", " << middle.z;
    }
    ball.castsShadow = false;
    frame();
    EXPECT_EQ(dark(), std::vector<int>());
}

TEST_F(ShadowPicture, IsRightAfterWireframeFramesWhichDrawOutlinesOnly)
{
    moveTo({0, 0, 0});
    frame();
    const glm::ivec4 solid = windowPixel(400, 300);
    renderer().toggleWireframe();
    ball.getNode()->setTransform(glm::scale(at(12, kHeight, 0), glm::vec3(2)));
    frame();
    int empty = 0;
    for (int x = 400; x < 600; ++x) empty += windowPixel(x, 300) == glm::ivec4(0, 0, 0, 255);
    EXPECT_GT(empty, 100) << "nothing between the lines";
    renderer().toggleWireframe();
    frame();
    EXPECT_EQ(windowPixel(400, 300), solid);
    EXPECT_EQ(dark(), std::vector<int>{6});
}

constexpr glm::ivec2 kSize(512, 384); // texels, in place of the renderer's 4096 x 3072

/// A light depth texture with its framebuffer.
struct Target {
    TargetTexture texture{GL_DEPTH_COMPONENT24, GL_DEPTH_COMPONENT, GL_FLOAT, kSize};
    Framebuffer framebuffer{nullptr, &texture};

    std::vector<GLuint> depths() const
    {
        std::vector<GLuint> result(std::size_t{kSize.x} * kSize.y);
        glBindTexture(GL_TEXTURE_2D, texture.getHandle());
        glGetTexImage(GL_TEXTURE_2D, 0, GL_DEPTH_COMPONENT, GL_UNSIGNED_INT, result.data());
        return result;
    }
};

class ShadowCacheTest : public RenderTest {
protected:
    float pick(float low, float high) { return std::uniform_real_distribution<float>(low, high)(random); }

    /// Somewhere, partly over the edges, leaning, scaled differently along each axis, now and then sheared by a
    /// parent's scale.
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
        fresh.framebuffer.bind();
        glClear(GL_DEPTH_BUFFER_BIT);
        shadows.render();
        const std::vector<GLuint> expected = fresh.depths();
        const auto index = std::mismatch(actual.begin(), actual.end(), expected.begin()).first - actual.begin();
        if (actual == expected) return testing::AssertionSuccess();
        return testing::AssertionFailure()
            << "first differs at texel (" << index % kSize.x << ", " << index / kSize.x << ")";
    }

    void remove(BoxModel& box)
    {
        box.getNode()->destroy();
        shadows.releaseModel(&box);
    }

    ShadowMappingRender shadows;
    Target cached, fresh;
    ShadowCache cache{cached.texture, cached.framebuffer};
    std::mt19937 random{20};
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
    BoxModel& ground = addStatic(glm::scale(at(0, -20, 0), {250, 5, 200}));
    BoxModel& wall = addStatic(glm::scale(at(50, 0, 50), {10, 30, 40}));
    BoxModel& car = addCaster(glm::scale(at(0, 0, 0), glm::vec3(15)));
    BoxModel& unknown = addCaster(glm::scale(at(-90, 0, 90), glm::vec3(12)));

    const auto place = [](BoxModel& box, const glm::mat4& pose, float scale) {
        box.getNode()->setTransform(glm::scale(pose, glm::vec3(scale)));
    };
    const std::pair<const char*, std::function<void()>> changes[] = {{"first frame", [] {}},
        {"a static caster moves", [&] { place(wall, at(-80, 0, 20), 20); }},
        {"a static caster goes", [&] { remove(wall); }},
        {"a static caster comes", [&] { addStatic(glm::scale(at(120, 0, -120), glm::vec3(20))); }},
        {"a static caster casts no more", [&] { ground.castsShadow = false; }},
        {"and casts again", [&] { ground.castsShadow = true; }},
        {"bounds become unknown", [&] { unknown.boundingRadius = 0; }},
        {"and it moves", [&] { place(unknown, at(90, 0, 0), 12); }}, {"and goes", [&] { remove(unknown); }},
        {"a moving caster rests for good", [&] { car.isStatic = true; }},
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
        {"a depth program that does not link",
            [&] { Library::getInstance()->getShaderprogram("ShadowDepth")->createProgram(); }},
        {"the right one again",
            [&] { Library::getInstance()->loadShader("ShadowDepth", "Shader/ShadowDepth.shader"); }}};
    for (const auto& [name, change] : changes) {
        change();
        EXPECT_TRUE(frameIsRight()) << "after: " << name;
        EXPECT_TRUE(frameIsRight()) << "a frame after: " << name;
    }
}

} // namespace
