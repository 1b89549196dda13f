#include "testing/GameSession.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

TEST(Recording, OfAGameThatStillRunsIsToldAgainWithAndWithoutAWindow)
{
    GameSession game;
    const std::string file = fs::absolute("match").string();
    game.start({}, {"--record", file, "--computer-players", "2", "--seed", "random"});
    game.startMatch();
    game.screen().press({"Up", "k"});
    game.program().waitFor("some seconds of a match", [&] {
        std::error_code error;
        return fs::file_size(file, error) > 2500 && !error;
    });
    game.screen().release({"Up", "k"});

    // Ends the game by force: what it has written is all there is.
    ASSERT_EQ(game.ask({"--headless", "--replay", file}), 0) << game.program().output();
    EXPECT_TRUE(std::regex_search(game.program().output(), std::regex("; ([1-9][0-9]*) of \\1 checks agree\n")));
    EXPECT_EQ(game.program().count("Enter "), 0) << "there are no screens";
    EXPECT_EQ(game.complaints(), "");

    game.start({}, {"--replay", file, "--speed", "4"});
    game.program().waitForOutput("Enter PlayGamestate");
    game.holdUntil("Left", "Enter RegisterPlayersGamestate"); // back by starting over
    game.program().waitForOutput("Enter PlayGamestate", 2);
    game.screen().press({"space"}); // and stands still
    game.screen().release({"space"});
    EXPECT_EQ(game.quit(), 0);
    EXPECT_EQ(game.complaints(), "") << "the match went another way";
}

TEST(Recording, KeepsTheLastTenMatchesOfAUserAndTellsWhatDoesNotGoTogether)
{
    GameSession game;
    fs::create_directory("quackdash");
    for (int year = 2001; year < 2013; ++year)
        std::ofstream("quackdash/" + std::to_string(year) + "-01-01-000000.quackdash") << "a match";
    std::ofstream("quackdash/quackdash.conf") << "record = auto\n";
    const std::vector<std::string> match{"--headless", "--computer-players", "2", "--passes", "240"};
    ASSERT_EQ(game.ask(match), 0) << game.program().output();
    std::vector<fs::path> kept;
    for (const auto& entry : fs::directory_iterator("quackdash"))
        if (entry.path().extension() == ".quackdash") kept.push_back(entry.path());
    std::sort(kept.begin(), kept.end());
    ASSERT_EQ(kept.size(), 10U);
    EXPECT_EQ(kept.front().filename(), "2004-01-01-000000.quackdash");
    EXPECT_EQ(game.ask({"--headless", "--replay", kept.back().string()}), 0) << game.program().output();

    const std::string newest = kept.back().string();
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--headless"},
             {"--replay", newest, "--record", "other"}, {"--headless", "--replay", newest, "--pictures", "here"},
             {"--pictures", "here"}, {"--replay", "nothing"}, {"--replay", "quackdash/quackdash.conf"}}) {
        EXPECT_EQ(game.ask(arguments), 2) << arguments.front();
        EXPECT_EQ(game.program().count("\n"), 1) << game.program().output();
    }
    std::ofstream("Audio/duck.wav") << "another sound";
    EXPECT_EQ(game.ask({"--replay", newest}), 2) << game.program().output();
    EXPECT_EQ(game.program().count("recorded with other data\n"), 1);
}

} // namespace
