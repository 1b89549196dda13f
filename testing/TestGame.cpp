#include "testing/TestGame.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "platform/DataFolder.h"
#include "render/FrameProbe.h"
#include "render/Renderer.h"

#include <GL/glew.h>

namespace {

/// Reads the frame just before it is swapped into the window.
class FrameReader : public IFrameProbe {
public:
    FrameReader(int width, int height) : picture{width, height, {}} {}

    void stepDone(const char* step) override
    {
        if (step != std::string("picture")) return;
        const std::size_t row = 3 * static_cast<std::size_t>(picture.width);
        picture.pixels.resize(row * static_cast<std::size_t>(picture.height));
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        for (int y = 0; y < picture.height; ++y) { // the window's rows count from below
            glReadPixels(0, picture.height - 1 - y, picture.width, 1, GL_RGB, GL_UNSIGNED_BYTE,
                &picture.pixels[row * static_cast<std::size_t>(y)]);
        }
    }

    Picture picture;
};

} // namespace

TestGame::~TestGame()
{
    getRenderer().terminate();
}

bool TestGame::start()
{
    if (!enterDataFolder() || !QKD_Game::start()) return false;
    keys.emplace();
    if (passSeconds) clock.emplace(*passSeconds);
    return true;
}

void TestGame::play(int passes)
{
    for (int i = 0; i < passes; ++i) {
        updatePass();
        getScene().update();
    }
}

Picture TestGame::draw()
{
    FrameReader reader(getRenderer().getWidth(), getRenderer().getHeight());
    getRenderer().setFrameProbe(&reader);
    drawPass();
    getRenderer().setFrameProbe(nullptr);
    return reader.picture;
}

Renderer& TestGame::getRenderer()
{
    return *getCore()->getRenderer();
}

std::string TestGame::getStateName() const
{
    return getCore()->getStateManager()->getCurrentState()->getName();
}
