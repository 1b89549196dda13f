#include "testing/ToldMatch.h"

#include "base/Fingerprint.h"
#include "match/Match.h"
#include "players/Ball.h"
#include "players/Player.h"
#include "replay/BuildKind.h"
#include "replay/HeadlessPlay.h"
#include "replay/Source.h"
#include "replay/WorldSample.h"

#include <cmath>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr int kSamplesToAHash = 10;
constexpr int kFullHealth = 100;
constexpr float kOffTheField = -10;                // world y
constexpr int kLeastBonus = 5, kGreatestBonus = 8; // points for a kill

/// Every hit costs health and brings points, and nothing else does, but falling off the field's edge.
class Books {
public:
    explicit Books(ToldMatch& ownTold) : told(ownTold) {}

    void check(const Match& match)
    {
        int damage = 0;
        told.points = told.deaths = 0;
        told.participants = match.getActorCount();
        told.people = match.getHumanPlayerCount();
        before.resize(match.getActors().size());
        for (std::size_t i = 0; i < before.size(); ++i) {
            const Player& player = *match.getActors()[i];
            noteFall(before[i], player);
            told.points += player.getScore();
            told.deaths += player.getDeaths();
            damage += kFullHealth * player.getDeaths() + kFullHealth - player.getHealth();
            if (!isInWorld(player.getPosition())) complain(player.getName() + " has left the world");
            before[i] = {player.getDeaths(), player.getHealth(), player.getHeight()};
        }
        damage -= lostInFalls;
        told.hits = damage / Ball::kDamage;
        const int kills = told.deaths - told.falls;
        if (damage % Ball::kDamage != 0 || told.points < told.hits + kLeastBonus * kills ||
            told.points > told.hits + kGreatestBonus * kills)
            complain("the books do not balance");
        ++told.passes;
    }

private:
    struct Entry {
        int deaths = 0, health = kFullHealth;
        float height = 0;
    };

    void noteFall(const Entry& last, const Player& player)
    {
        if (player.getDeaths() == last.deaths || last.height > kOffTheField) return;
        ++told.falls;
        lostInFalls += last.health;
    }

    static bool isInWorld(const glm::vec3& place)
    {
        // World units: the field ends at 276, and who drives off it flies on until the fall ends at -30.
        constexpr float kEdge = 450, kBottom = -40, kTop = 100;
        return std::abs(place.x) < kEdge && std::abs(place.z) < kEdge && place.y > kBottom && place.y < kTop;
    }

    void complain(const std::string& what)
    {
        if (told.fault.empty()) told.fault = what + " after " + std::to_string(told.passes) + " passes";
    }

    ToldMatch& told;
    std::vector<Entry> before;
    int lostInFalls = 0; // health
};

/// A hash of all samples, written down now and then.
class Hashes {
public:
    void add(const recording::Sample& sample)
    {
        const std::uint64_t hash = sample.hash();
        sum.add(&hash, sizeof hash);
        if (++count % kSamplesToAHash == 0) write();
    }

    std::string finish()
    {
        if (count % kSamplesToAHash != 0) write();
        return text.str();
    }

private:
    void write() { text << ' ' << std::hex << std::setfill('0') << std::setw(8) << (sum.value() & 0xffffffff); }

    Fingerprint sum;
    int count = 0;
    std::ostringstream text;
};

fs::path hashFileOf(const fs::path& recording)
{
    return fs::path(recording).replace_extension("hashes");
}

std::string kindIn(const std::string& line)
{
    return line.substr(0, line.find(": "));
}

std::vector<std::string> linesOf(const fs::path& file)
{
    std::vector<std::string> lines;
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

} // namespace

ToldMatch tellAgain(const fs::path& recording)
{
    ToldMatch told;
    Source source(recording);
    told.fault = source.openFromAnywhere();
    if (!told.fault.empty()) return told;
    Books books(told);
    Hashes hashes;
    recording::Sample now;
    tellHeadless(source, [&](const Match& match) {
        books.check(match);
        if (!source.getPass().has_sample()) return;
        takeSample(match, now);
        hashes.add(now);
        told.distance = std::max(told.distance, greatestDistance(source.getPass().sample(), now));
    });
    told.line = kindOfBuild() + ':' + hashes.finish();
    return told;
}

std::string findHashes(const fs::path& recording, const std::string& line)
{
    for (const std::string& known : linesOf(hashFileOf(recording)))
        if (kindIn(known) == kindIn(line)) return known;
    return "";
}

std::string compareHashes(const std::string& expected, const std::string& actual)
{
    std::istringstream one(expected.substr(kindIn(expected).size())), other(actual.substr(kindIn(actual).size()));
    std::string was, is;
    for (int number = 0; one >> was; ++number)
        if (!(other >> is) || was != is)
            return "another hash between samples " + std::to_string(std::max(number - 1, 0) * kSamplesToAHash) +
                " and " + std::to_string(number * kSamplesToAHash);
    return other >> is ? "more hashes than there should be" : "";
}

bool renewHashes(const fs::path& recording, const std::string& line)
{
    std::vector<std::string> lines = linesOf(hashFileOf(recording));
    if (findHashes(recording, line) == line) return true;
    const bool isChanged = !findHashes(recording, line).empty();
    if (isChanged) lines.clear();
    lines.push_back(line);
    std::ofstream out(hashFileOf(recording));
    for (const std::string& one : lines) out << one << '\n';
    return static_cast<bool>(out.flush());
}
