#include "StoryGame.h"

#include "testing/FrameRecorder.h"
#include "testing/GlErrors.h"

std::unique_ptr<TestGame> StoryGame::game;
std::unique_ptr<ScriptedKeyboard> StoryGame::keys;
RecordingPresentation* StoryGame::record = nullptr;

namespace {

class EndOfStory : public testing::Environment {
public:
    void TearDown() override { StoryGame::end(); }
};

[[maybe_unused]] const testing::Environment* const endOfStory = testing::AddGlobalTestEnvironment(new EndOfStory);

} // namespace

void StoryGame::SetUpTestSuite()
{
    if (game) return;
    auto presentation = std::make_unique<RecordingPresentation>(*Core::getInstance()->getRenderer());
    record = presentation.get();
    game = std::make_unique<TestGame>(kPassSeconds, std::move(presentation));
    ASSERT_TRUE(game->start()) << "no OpenGL 4.3 core context; is there a display?";
    failTestsOnGlErrors();
    keys = std::make_unique<ScriptedKeyboard>();
}

void StoryGame::end()
{
    if (game) game->getRenderer().terminate();
    keys.reset();
    game.reset();
}

void StoryGame::pass(std::initializer_list<int> down, int passes)
{
    keys->hold(down);
    for (int i = 0; i < passes; ++i) {
        game->updatePass();
        game->getScene().update();
    }
}

void StoryGame::tap(int key)
{
    keys->tap(key);
    pass();
}

Picture StoryGame::draw()
{
    FrameRecorder recorder;
    game->getRenderer().setFrameProbe(&recorder);
    game->drawPass();
    game->getRenderer().setFrameProbe(nullptr);
    return recorder.getPicture();
}
