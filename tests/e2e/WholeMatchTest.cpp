#include "e2e/GameSession.h"

#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <regex>
#include <sstream>

namespace {

constexpr int kComputerPlayers = 10;
constexpr int kGunshotsBetweenRankings = 5; // a gun needs 700 ms from shot to shot, a ranking comes every 3 s
constexpr double kMatchSeconds = 200;

struct Line {
    std::string place, player; ///< "First", "Player 5, AI-Controller 2"
    int score = 0;
};
using Ranking = std::vector<Line>;

/// The rankings in the log, each ended by an empty line.
std::vector<Ranking> rankings(const std::string& log)
{
    static const std::regex entry(R"(DEBUG \| (First|Second|Third): +\((\d+)\) (Player \d+, .+))");
    std::vector<Ranking> all(1);
    std::istringstream lines(log);
    std::smatch parts;
    for (std::string line; std::getline(lines, line);) {
        if (std::regex_match(line, parts, entry)) all.back().push_back({parts[1], parts[3], std::stoi(parts[2])});
        else if (line == "DEBUG | " && !all.back().empty()) all.emplace_back();
    }
    all.pop_back(); // begun at the most
    return all;
}

/// The most points that anybody made from one ranking to the next.
int bestLeap(const std::vector<Ranking>& all)
{
    std::map<std::string, int> before;
    int best = 0;
    for (const Ranking& ranking : all) {
        std::map<std::string, int> now;
        for (const Line& line : ranking) {
            now[line.player] = line.score;
            if (before.count(line.player)) best = std::max(best, line.score - before[line.player]);
        }
        before = now;
    }
    return best;
}

/// Two people on one keyboard and ten computer players.
class WholeMatch : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(game.start()) << game.log();
        for (const char* key : {"k", "1"}) game.tap(key);
        ASSERT_TRUE(waitUntil(60, [this] {
            game.tap("space");
            return game.countInLog(", AI-Controller ") == kComputerPlayers;
        })) << game.log();
        game.tap("Return");
        ASSERT_TRUE(game.waitForLog("Enter PlayGamestate")) << game.log();
    }

    /// The leaders of each ranking are participants, in order, and lose no points.
    void checkRankings(const std::vector<Ranking>& all)
    {
        const char* const places[] = {"First", "Second", "Third"};
        std::map<std::string, int> scores;
        for (const Ranking& ranking : all) {
            ASSERT_LE(ranking.size(), 3u);
            for (std::size_t i = 0; i < ranking.size(); ++i) {
                const Line& line = ranking[i];
                EXPECT_EQ(line.place, places[i]);
                EXPECT_EQ(game.countInLog("Registering (0) " + line.player + "\n"), 1) << line.player << " has not joined";
                EXPECT_TRUE(i == 0 || ranking[i - 1].score >= line.score) << line.player;
                EXPECT_GE(line.score, scores[line.player]) << line.player;
                scores[line.player] = line.score;
            }
        }
    }

    GameSession game;
};

TEST_F(WholeMatch, IsPlayedForPointsAndRankedEveryThreeSeconds)
{
    const Picture before = game.screen().look();
    for (const char* key : {"Up", "w", "k", "1"}) game.screen().pressKey(key);
    // One of the two may have landed on its tail and see the sky.
    EXPECT_TRUE(game.waitForChange(before, before.whole(), 0.1)) << "nobody sees anything else than at the start";

    // The first hit, three leaders, and a kill: the points that it is worth come at once.
    ASSERT_TRUE(game.waitForLog("First:  (", 1, kMatchSeconds)) << "nobody hit anybody";
    ASSERT_TRUE(game.waitForLog("First:  (", game.countInLog("First:  (") + 1)); // the clock starts with a fresh one
    const auto first = std::chrono::steady_clock::now();
    const int atFirst = game.countInLog("First:  (");
    EXPECT_TRUE(waitUntil(kMatchSeconds,
        [this] {
            const std::vector<Ranking> all = rankings(game.log());
            return !all.empty() && all.back().size() == 3 && bestLeap(all) > kGunshotsBetweenRankings;
        }))
        << "no third leader or no kill:\n"
        << game.log();
    for (const char* key : {"Up", "w", "k", "1"}) game.screen().releaseKey(key);

    ASSERT_TRUE(game.waitForLog("First:  (", atFirst + 2));
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - first;
    const int intervals = game.countInLog("First:  (") - atFirst;
    EXPECT_GT(seconds.count(), 3.0 * intervals - 0.5);
    EXPECT_LT(seconds.count(), 4.0 * (intervals + 1)) << "a busy machine's long passes included";

    checkRankings(rankings(game.log()));
    EXPECT_EQ(game.quit(), 0);
    EXPECT_EQ(game.complaints(), "");
}

} // namespace
