#include "StoryGame.h"

#include "testing/GlErrors.h"

namespace {

class EndOfStory : public testing::Environment {
public:
    void TearDown() override { StoryGame::end(); }
};

[[maybe_unused]] const testing::Environment* const endOfStory = testing::AddGlobalTestEnvironment(new EndOfStory);

} // namespace

void StoryGame::begin(const GameOptions& options)
{
    if (game) return;
    auto presentation = std::make_unique<RecordingPresentation>(*Core::getInstance()->getRenderer());
    record = presentation.get();
    game = std::make_unique<TestGame>(kPassSeconds, std::move(presentation), options);
    ASSERT_TRUE(game->start()) << "no OpenGL 4.3 core context; is there a display?";
    failTestsOnGlErrors();
}

void StoryGame::end()
{
    game.reset();
}

void StoryGame::pass(std::initializer_list<int> down, int passes)
{
    keys().hold(down);
    game->play(passes);
}

void StoryGame::tap(int key)
{
    keys().tap(key);
    game->play();
}
