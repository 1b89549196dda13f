#pragma once

#include "assets/Library.h"
#include "assets/Model.h"
#include "gpu/Shaderprogram.h"
#include "render/Renderer.h"
#include "scene/Camera.h"
#include "scene/Node.h"
#include "scene/SceneGraph.h"
#include "scene/Viewport.h"
#include "testing/ScriptedKeyboard.h"
#include "testing/SteppedClock.h"

#include <glm/glm.hpp>
#include <glm/gtc/matrix_transform.hpp>
#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A cube of one plain colour, two units wide unless its node scales it.
class BoxModel final : public Model {
public:
    explicit BoxModel(const glm::vec4& colour);
    ~BoxModel();

    void draw() override;

    int draws = 0;                ///< so far
    std::function<void()> onDraw; ///< with the program and its uniforms set
};

/// A scene of its own before the one real renderer, which all tests share: the window is opened before the first, with
/// the game's shaders and textures. GL errors fail the test. Time stands still between frames unless the test moves the
/// clock.
class RenderTest : public testing::Test {
public:
    static void SetUpTestSuite();

protected:
    RenderTest();
    ~RenderTest() override;

    static Renderer& renderer();

    /// A viewport in the frame's list, with a camera of its own that looks along -z of its node.
    Viewport& addView(const Viewport::Rect& rect, const glm::mat4& pose = glm::mat4(1.0f),
        const glm::vec4& clearColour = {0, 0, 0, 1});
    Viewport& addWholeWindow(const glm::mat4& pose = glm::mat4(1.0f)) { return addView({0, 0, 1024, 768}, pose); }

    Node* addNode(const glm::mat4& pose);

    /// Makes a model, owned by the test, on a node of its own.
    template <class T, class... Arguments>
    T& add(const glm::mat4& pose, Arguments&&... arguments)
    {
        auto model = std::make_shared<T>(std::forward<Arguments>(arguments)...);
        addNode(pose)->attach(model.get());
        models.push_back(model);
        return *model;
    }
    BoxModel& addBox(const glm::mat4& pose, const glm::vec4& colour = {1, 1, 1, 1})
    {
        return add<BoxModel>(pose, colour);
    }

    /// As the main loop draws one: empties the text queue, ticks, renders.
    void frame();

    static glm::ivec4 windowPixel(int x, int y); ///< of that frame, 0 to 255 each; (0, 0) is at the lower left

    /// What lies in the text queue, one line a text.
    struct Line {
        std::string text;
        float x, y;
        bool operator==(const Line&) const = default;
    };
    std::vector<Line> queuedLines() const;

    ScriptedKeyboard keys;
    SteppedClock clock;
    SceneGraph graph;

private:
    std::vector<std::shared_ptr<void>> models;
    std::deque<Viewport> views;
    std::deque<Camera> cameras;
};

inline glm::mat4 at(float x, float y, float z)
{
    return glm::translate(glm::mat4(1.0f), glm::vec3(x, y, z));
}

inline void PrintTo(const glm::ivec4& pixel, std::ostream* out)
{
    *out << "(" << pixel.r << ", " << pixel.g << ", " << pixel.b << ", " << pixel.a << ")";
}
