#pragma once

#include "app/Core.h"
#include "players/Player.h"
#include "render/Renderer.h"
#include "testing/RecordingPresentation.h"
#include "testing/TestGame.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>

/// The whole game with its window, from the first screen on, played by its keys. One story in parts: there is one game
/// to a process, and each test goes on where the one before it has ended.
class StoryGame : public testing::Test {
public:
    static void SetUpTestSuite() { begin(); }
    static void begin(const GameOptions& options = {});
    static void end(); ///< close the window, after the last test

protected:
    static constexpr double kPassSeconds = 1.0 / 30.0;

    StoryGame() { keys().reset(); }

    /// Make passes with these keys down, without a picture.
    static void pass(std::initializer_list<int> down = {}, int passes = 1);

    /// Press and release a key in the shortest time; then make a pass.
    static void tap(int key);

    static ScriptedKeyboard& keys() { return game->getKeys(); }
    static GameStateManager& states() { return *game->getCore()->getStateManager(); }
    static Player& player(int i) { return *game->getMatch().getPlayers().at(static_cast<std::size_t>(i)); }

    static inline std::unique_ptr<TestGame> game;
    static inline RecordingPresentation* record = nullptr; // the game's
};
