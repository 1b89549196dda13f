#include "app/Core.h"
#include "app/PlayerLabels.h"
#include "physics/VehicleHandle.h"
#include "players/Player.h"
#include "render/Renderer.h"
#include "render/TextRenderer.h"
#include "scene/SceneGraph.h"
#include "testing/CapturedLog.h"
#include "testing/GlErrors.h"
#include "testing/TestGame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <regex>
#include <set>
#include <sstream>

namespace {

/// A text that was drawn, and its box in normalised device coordinates.
struct Text {
    std::string letters;
    glm::vec2 low, high;

    bool touches(const Text& other) const
    {
        constexpr float kRounding = 1e-5f;
        const glm::vec2 depth = glm::min(high, other.high) - glm::max(low, other.low);
        return depth.x > kRounding && depth.y > kRounding;
    }
    bool isWithin(float left, float right) const
    {
        return low.x >= left && high.x <= right && low.y >= -1 && high.y <= 1;
    }
};

char letterOf(const TextRenderer::vertex& upperLeft)
{
    const long cell = std::lround(upperLeft.v * 16) * 16 + std::lround(upperLeft.u * 16);
    return cell == 96 ? ' ' : static_cast<char>('!' + cell);
}

/// The whole game as English guests play it: one story, for there is one game to a process.
class GuestStory : public testing::Test {
public:
    static void SetUpTestSuite()
    {
        GameOptions options;
        options.text = {.language = Language::En, .scale = 200, .ownLabels = true, .culledText = false, .hint = true};
        options.start.names = {"", "", "", "", "Granny", "Opa"};
        options.colours.people = kSafeColours;
        game = std::make_unique<TestGame>(1.0 / 30.0, options);
        ASSERT_TRUE(game->start()) << "no OpenGL 4.3 core context; is there a display?";
        failTestsOnGlErrors();
    }
    static void TearDownTestSuite() { game.reset(); }

protected:
    GuestStory() { game->getKeys().reset(); }

    static std::vector<Text> screen()
    {
        game->updatePass();
        game->drawPass();
        std::vector<Text> texts;
        const auto& queue = game->getRenderer().getTextRenderer()->getQueue();
        for (std::size_t i = 0; i < queue.size(); i += 6) {
            const auto [left, right] = std::minmax({queue[i].x, queue[i + 1].x, queue[i + 2].x, queue[i + 5].x});
            const auto [bottom, top] = std::minmax({queue[i].y, queue[i + 1].y, queue[i + 2].y, queue[i + 5].y});
            const bool goesOn =
                !texts.empty() && std::abs(texts.back().high.x - left) < 1e-5f && texts.back().high.y == top;
            if (!goesOn) texts.push_back({"", {left, bottom}, {right, top}});
            texts.back().letters += letterOf(queue[i]);
            texts.back().high.x = right;
        }
        return texts;
    }

    static const Text* find(const std::vector<Text>& texts, const std::string& letters, float from = -1)
    {
        const auto found = std::find_if(texts.begin(), texts.end(),
            [&](const Text& text) { return text.letters == letters && text.low.x >= from; });
        return found == texts.end() ? nullptr : &*found;
    }

    static void tap(int key)
    {
        game->getKeys().tap(key);
        game->play();
    }

    static inline std::unique_ptr<TestGame> game;
};

/// The words of the catalogue, and those that are the same in every language.
std::set<std::string> englishWords()
{
    std::set<std::string> words{"Quackdash!", "WASD", "XBOX", ">", "K", "L", "A", "B", "1", "2"};
    const std::regex translation("msgstr \"(.*)\"");
    std::ifstream catalogue(QUACKDASH_ENGLISH);
    std::smatch match;
    for (std::string line; std::getline(catalogue, line);) {
        if (!std::regex_match(line, match, translation)) continue;
        std::istringstream all(match.str(1));
        for (std::string word; all >> word;) words.insert(word);
    }
    return words;
}

void expectEnglish(const std::vector<Text>& texts)
{
    static const std::set<std::string> known = englishWords();
    for (const Text& text : texts) {
        std::istringstream all(text.letters);
        for (std::string word; all >> word;)
            EXPECT_TRUE(known.contains(word)) << '"' << word << "\" is not in po/en.po: " << text.letters;
    }
}

TEST_F(GuestStory, BeginsWithAHintUntilSomebodyJoins)
{
    const std::vector<Text> hint = screen();
    ASSERT_TRUE(find(hint, "Press to join:"));
    EXPECT_TRUE(find(hint, "  Arrow keys > K"));
    EXPECT_GT(find(hint, "Press to join:")->high.y - find(hint, "Press to join:")->low.y, 0.1f) << "small print";
    expectEnglish(hint);

    game->getKeys().hold({GLFW_KEY_F1});
    const std::vector<Text> help = screen();
    EXPECT_TRUE(find(help, "  Enter or Start"));
    EXPECT_FALSE(find(help, "Press to join:"));
    expectEnglish(help);
    game->getKeys().reset();

    CapturedLog log;
    tap(GLFW_KEY_K);
    EXPECT_EQ(log.count("Player 0, Granny\n"), 1) << log.text();
    EXPECT_TRUE(screen().empty());
}

TEST_F(GuestStory, GoesOnWithEachPlayersTextInTheOwnViewAndSignsAboveTheCars)
{
    TextOptions shown;
    shown.ownLabels = true;
    game->getRenderer().setCulledText(makeCulledText(game->getRenderer(), shown));
    tap(GLFW_KEY_1);
    for (int i = 0; i < 10; ++i) tap(GLFW_KEY_SPACE);
    tap(GLFW_KEY_TAB);
    std::set<std::string> signs;
    for (int moment = 0; moment < 20; ++moment) {
        const std::vector<Text> texts = screen();
        for (const Text& text : texts) {
            EXPECT_TRUE(text.isWithin(-1, 0) || text.isWithin(0, 1)) << text.letters;
            for (const Text* other = &text + 1; other != texts.data() + texts.size(); ++other)
                EXPECT_FALSE(text.touches(*other)) << text.letters << " and " << other->letters;
            signs.insert(text.letters);
        }
        ASSERT_TRUE(find(texts, "1 Granny"));
        EXPECT_TRUE(find(texts, "1 Granny")->isWithin(-1, 0));
        EXPECT_TRUE(find(texts, "2 Opa", 0));
        EXPECT_NEAR(find(texts, "1 Granny")->high.x - find(texts, "1 Granny")->low.x, 8 * 0.0625, 1e-4);
        game->play(10);
    }
    const auto isCount = [](const Text& text) { return text.letters.starts_with("culled: "); };
    EXPECT_EQ(std::ranges::count_if(screen(), isCount), 2);
    EXPECT_TRUE(std::any_of(signs.begin(), signs.end(), [](const std::string& s) { return s.starts_with("C"); }));
    game->getKeys().hold({GLFW_KEY_F1});
    expectEnglish(screen());
    game->getKeys().reset();

    Player &one = *game->getMatch().getPlayers().at(0), &two = *game->getMatch().getPlayers().at(1);
    EXPECT_EQ(two.getColor(), kSafeColours[1]);
    for (const float ahead : {15.0f, -60.0f}) { // in one's view, and behind it
        one.getVehicle()->placeAt({0, 150, 0}); // far above the others
        two.getVehicle()->placeAt({0, 150, ahead});
        const std::vector<Text> texts = screen();
        const bool isSeen = find(texts, "2") && find(texts, "2")->isWithin(-1, 0);
        EXPECT_EQ(isSeen, ahead > 0);
    }
}

} // namespace
