#include "app/Core.h"
#include "base/Random.h"
#include "platform/DataFolder.h"
#include "players/Player.h"
#include "render/Renderer.h"
#include "replay/HeadlessPlay.h"
#include "replay/Identity.h"
#include "replay/RecordedPlay.h"
#include "replay/ReplayGame.h"
#include "testing/CapturedLog.h"
#include "testing/OwnProcess.h"
#include "testing/PngFile.h"
#include "testing/TemporaryFolder.h"
#include "testing/TestGame.h"
#include "testing/VirtualPad.h"

#include <gtest/gtest.h>

namespace {

constexpr double kPassSeconds = 1.0 / 30.0;
constexpr unsigned kSeed = 11;

/// A game that is recorded, with a hand on its keys and a pad in the other.
class PlayedGame {
public:
    explicit PlayedGame(const std::filesystem::path& file)
        : outside(file, describeThisPlay(kSeed, options.start)), game(kPassSeconds, options, outside)
    {
    }

    bool start()
    {
        sowRandom(kSeed);
        return game.start();
    }

    void pass(std::initializer_list<int> keys, int count = 1)
    {
        game.getKeys().hold(keys);
        for (int i = 0; i < count; ++i)
            if (game.updatePass()) game.getScene().update(); // as drawing does, in less time
    }

    /// From the first screen into a match of five, in which all that can come from outside does.
    void playWithAPictureOfTheFlight(const std::string& picture)
    {
        const auto button = SDL_CONTROLLER_BUTTON_A;
        pass({GLFW_KEY_K, GLFW_KEY_1, GLFW_KEY_SPACE});
        pad.press(button);
        pass({GLFW_KEY_SPACE}, 2);
        pad.release(button);
        pass({GLFW_KEY_ENTER});
        pass({GLFW_KEY_UP, GLFW_KEY_K, GLFW_KEY_W}, 40);
        game.getKeys().tap(GLFW_KEY_F4); // texture filters; the rate of F2 counts drawn passes only
        pad.move(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, 20000);
        pad.move(SDL_CONTROLLER_AXIS_LEFTX, -17000);
        pass({GLFW_KEY_LEFT, GLFW_KEY_UP}, 20);
        game.getClock().sleep(1.5); // the machine was busy: a pass is left out
        outside.mark();
        pad.press(button); // nobody will shoot with a pad that is gone
        pass({GLFW_KEY_W, GLFW_KEY_D, GLFW_KEY_1}, 10);
        pass({GLFW_KEY_F12});
        pass({GLFW_KEY_S, GLFW_KEY_RIGHT}, 20); // a flight, in which nobody drives
        glfwSetCursorPos(glfwGetCurrentContext(), 700, 300);
        takePicture(picture);
        pass({GLFW_KEY_F11});
        pad.unplug();
        pass({GLFW_KEY_UP, GLFW_KEY_K, GLFW_KEY_F1}, 40); // ends with the help
        pass({GLFW_KEY_UP, GLFW_KEY_RIGHT}, 3);
    }

    /// Draw one more pass into a file.
    void takePicture(const std::string& file)
    {
        game.updatePass();
        writePng(file, game.draw());
    }

private:
    static GameOptions withOneComputer()
    {
        GameOptions options;
        options.start.computerPlayers = 1;
        return options;
    }

    const GameOptions options = withOneComputer();
    PadLibrary library;
    VirtualPad pad;
    RecordedPlay outside;
    TestGame game;
};

TEST(RecordedGame, IsTheSameMatchWithoutAWindowAndTheSamePictureInOne)
{
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "match", pictures = folder.path() / "pictures";
    const std::string flight = (folder.path() / "flight.png").string();
    const std::string last = (folder.path() / "last.png").string();
    ASSERT_TRUE(enterDataFolder());
    ASSERT_EQ(inOwnProcess([&] {
        PlayedGame game(file);
        if (!game.start()) return EXIT_FAILURE;
        game.playWithAPictureOfTheFlight(flight);
        game.takePicture(last);
        return EXIT_SUCCESS;
    }),
        EXIT_SUCCESS);

    Source source(file);
    ASSERT_TRUE(openForTelling(source, file));
    EXPECT_EQ(source.getRecording().getPassCount(), 141);
    EXPECT_EQ(source.getRecording().getMarks().size(), 1U);
    CapturedLog log;
    EXPECT_EQ(replayHeadless(source), EXIT_SUCCESS);
    EXPECT_TRUE(log.contains("; 1 of 1 checks agree\n")) << log.text();
    EXPECT_EQ(log.count("Player registered\n"), 3);
    for (const char* who : {"Player 1, Pfeil, ", "Player 2, WASD, ", "Player 4, XBOX 1, "})
        EXPECT_TRUE(log.contains(who)) << log.text();

    ASSERT_EQ(inOwnProcess([&] {
        Source shown(file);
        if (!openForTelling(shown, file)) return EXIT_FAILURE;
        ReplayOptions options;
        options.pictures = pictures;
        return tellInWindow(shown, {}, options);
    }),
        EXIT_SUCCESS);
    EXPECT_FALSE(std::filesystem::exists(pictures / "000065.png")) << "the pass that was left out";
    EXPECT_EQ(changedShare(readPng(flight), readPng(pictures / "000096.png")), 0);
    EXPECT_EQ(changedShare(readPng(last), readPng(pictures / "000141.png")), 0);
    EXPECT_GT(changedShare(readPng(last), readPng(pictures / "000100.png")), 0.1) << "there is nothing to see";
}

} // namespace
