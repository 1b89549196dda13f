// Plays the matches of tests/recordings in the real game, on a virtual display, by real key events and virtual pads.
// Run by tools/recordings.sh:
//     play_recordings FOLDER [NAME]
// NAME: that match only.

#include "replay/RecordingReader.h"
#include "testing/GameSession.h"
#include "tools/recordings/PadStates.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <random>
#include <thread>

namespace fs = std::filesystem;

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr Seconds kHandRest(0.03);     // between two looks at what the hands should do
constexpr Seconds kBetweenLooks(0.25); // at the field
constexpr Seconds kDrive(1.5);         // of who goes straight on, up to the next look
constexpr double kForesight = 4;       // seconds of game time that one thinks ahead near the edge
constexpr double kSafeGround = 170;    // world units from the middle; the field ends at 276
constexpr double kShootingRange = 40;  // units
constexpr double kAim = 0.06;          // radians that need no turn
constexpr double kTurning = 3;         // radians a second of a car that is steered
constexpr int kLooksToAMark = 80;

Clock::duration inTicks(Seconds time)
{
    return std::chrono::duration_cast<Clock::duration>(time);
}

constexpr char kScreen[] = "940x300x24"; // the pointer, in its middle, is over a window of 320 x 240

struct Plan {
    const char* name;
    bool keys, pads; // who plays
    int computerPlayers;
    double seconds;
};

constexpr Plan kPlans[] = {
    {"duel", true, false, 0, 60}, {"four-pads", false, true, 0, 60}, {"sixteen", true, true, 10, 300}};

/// The pads' states, shared with the game.
class SharedPads {
public:
    explicit SharedPads(const fs::path& file)
    {
        const int opened = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        if (opened < 0 || ftruncate(opened, sizeof(PadStates)) != 0) throw std::runtime_error("no file for pads");
        void* const memory = mmap(nullptr, sizeof(PadStates), PROT_READ | PROT_WRITE, MAP_SHARED, opened, 0);
        close(opened);
        if (memory == MAP_FAILED) throw std::runtime_error("no memory for pads");
        states = new (memory) PadStates();
    }
    ~SharedPads() { munmap(states, sizeof(PadStates)); }
    SharedPads(const SharedPads&) = delete;
    SharedPads& operator=(const SharedPads&) = delete;

    PadState& operator[](int i) { return (*states)[static_cast<std::size_t>(i)]; }

private:
    PadStates* states;
};

/// What a person does at a moment.
struct Wish {
    float steering = 0; // -1, right, to 1, left
    bool gas = false, brake = false, shoots = false;
};

/// Two hands: keys of a half, or a pad.
struct Hands {
    VirtualDisplay& screen;
    std::array<std::string, 5> keys; // gas, brake, left, right, shoot; empty for a pad
    PadState* pad = nullptr;
    std::array<bool, 5> down{};

    void act(const Wish& wish)
    {
        if (pad) return move(wish);
        const std::array<bool, 5> wanted{wish.gas, wish.brake, wish.steering > 0, wish.steering < 0, wish.shoots};
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (wanted[i] == down[i]) continue;
            wanted[i] ? screen.press({keys[i]}) : screen.release({keys[i]});
        }
        down = wanted;
    }

    void move(const Wish& wish) const
    {
        constexpr float kWay = 32767;
        const auto trigger = [](bool pulled) { return pulled ? INT16_MAX : INT16_MIN; };
        pad->stick = static_cast<std::int16_t>(-wish.steering * kWay);
        pad->gas = static_cast<std::int16_t>(trigger(wish.gas));
        pad->brake = static_cast<std::int16_t>(trigger(wish.brake));
        pad->shoots = wish.shoots;
    }
};

/// Where a car is, and where it goes.
struct Place {
    double x = 0, z = 0, ahead = 0; // world units; radians from +z towards +x
    double alongX = 0, alongZ = 0;  // units per second of game time
};

Place placeOf(const recording::Participant& one)
{
    const auto figure = [&one](int i) { return double{one.figures(i)}; };
    const auto q = [&figure](int i) { return figure(3 + i); };
    const double x = 2 * (q(0) * q(2) + q(3) * q(1)), z = 1 - 2 * (q(0) * q(0) + q(1) * q(1));
    return {figure(0), figure(2), std::atan2(x, z), figure(7), figure(9)};
}

/// What the recording's last sample shows, and when it was taken.
struct Field {
    std::vector<Place> places; // in order of joining
    Clock::time_point time;
};

Field lookAround(const fs::path& file)
{
    RecordingReader reader(file);
    Field field;
    recording::Pass pass;
    Seconds age(0);
    if (!reader.open().empty()) return field;
    while (reader.next(pass)) {
        age += std::chrono::milliseconds(pass.length_ms());
        if (!pass.has_sample()) continue;
        field.places.clear();
        for (const recording::Participant& one : pass.sample().participants()) field.places.push_back(placeOf(one));
        age = Seconds(0);
    }
    age += fs::file_time_type::clock::now() - fs::last_write_time(file);
    field.time = Clock::now() - inTicks(age);
    return field;
}

/// Somebody who plays: drives up to the nearest other, stops there, takes aim and shoots. Looks up when the last turn
/// has come to its end, backs off when stuck, and keeps away from the field's edge.
class Person {
public:
    Person(Hands ownHands, std::size_t ownSeat) : hands(std::move(ownHands)), seat(ownSeat), random(ownSeat + 1) {}

    Hands& getHands() { return hands; }

    void look(const Field& field)
    {
        if (seat >= field.places.size() || field.time < straightFrom) return;
        const Place& own = field.places[seat];
        const Place goal = goalOf(own, field.places);
        const double turn =
            std::remainder(std::atan2(goal.x - own.x, goal.z - own.z) - own.ahead, 2 * std::numbers::pi);
        const bool isNear = away(own, goal) < kShootingRange, isStuck = drives && away(own, before) < 1;
        before = own;
        drives = !isNear || std::abs(turn) > kAim;
        const double strength = std::uniform_real_distribution(0.5, 1.0)(random);
        wish = {.steering = static_cast<float>(std::copysign(strength, isStuck ? -turn : turn)),
            .gas = drives && !isStuck,
            .brake = isStuck,
            .shoots = random() % 8 != 0};
        straightFrom = Clock::now() + inTicks(Seconds(std::abs(turn) / kTurning));
        restFrom = isNear ? straightFrom : straightFrom + inTicks(kDrive);
    }

    void act()
    {
        if (Clock::now() > straightFrom) wish.steering = 0;
        if (Clock::now() > restFrom) wish.gas = wish.brake = false;
        hands.act(wish);
    }

private:
    static double away(const Place& one, const Place& other) { return std::hypot(other.x - one.x, other.z - one.z); }

    /// The nearest other; the field's middle near its edge.
    static Place goalOf(const Place& own, const std::vector<Place>& places)
    {
        const double soonX = own.x + own.alongX * kForesight, soonZ = own.z + own.alongZ * kForesight;
        if (std::max(std::abs(soonX), std::abs(soonZ)) > kSafeGround) return {};
        const Place* nearest = nullptr;
        for (const Place& other : places)
            if (&other != &own && (!nearest || away(own, other) < away(own, *nearest))) nearest = &other;
        return nearest ? *nearest : Place();
    }

    Hands hands;
    std::size_t seat; // order of joining
    std::mt19937 random;
    Place before;
    bool drives = false;
    Wish wish;
    Clock::time_point straightFrom, restFrom;
};

void rest(Seconds time)
{
    std::this_thread::sleep_for(time);
}

/// Have everybody join, one after the other.
void join(GameSession& game, const Plan& plan, SharedPads& pads, std::vector<Person>& people)
{
    VirtualDisplay& screen = game.screen();
    const auto add = [&people](Hands hands) { people.emplace_back(std::move(hands), people.size()); };
    if (plan.keys) {
        game.holdUntil("k", "Player registered");
        add({screen, {"Up", "Down", "Left", "Right", "k"}});
        game.holdUntil("1", "Player registered");
        add({screen, {"w", "s", "a", "d", "1"}});
    }
    for (int i = 0; plan.pads && i < 4; ++i) {
        const int before = game.program().count("Player registered");
        pads[i].shoots = true;
        game.program().waitForOutput("Player registered", before + 1);
        pads[i].shoots = false;
        add({screen, {}, &pads[i]});
    }
}

void begin(GameSession& game, const Plan& plan, SharedPads& pads)
{
    if (plan.keys && plan.pads) return game.program().waitForOutput("Enter PlayGamestate", 1); // as all have joined
    if (plan.keys) return game.holdUntil("Return", "Enter PlayGamestate");
    pads[0].starts = true;
    game.program().waitForOutput("Enter PlayGamestate");
    pads[0].starts = false;
}

void playOn(GameSession& game, const Plan& plan, const fs::path& file, std::vector<Person>& people)
{
    const Clock::time_point begun = Clock::now();
    const auto played = [begun] { return Seconds(Clock::now() - begun).count(); };
    for (int looks = 1; played() < plan.seconds; ++looks) {
        const Field field = lookAround(file);
        for (Person& person : people) person.look(field);
        while (played() < looks * kBetweenLooks.count()) {
            for (Person& person : people) person.act();
            rest(kHandRest);
        }
        if (looks % kLooksToAMark == 0) game.screen().press({"F10"});
        else if (looks % kLooksToAMark == 1) game.screen().release({"F10"});
    }
    for (Person& person : people) person.getHands().act({});
}

void play(const Plan& plan, const fs::path& file)
{
    GameSession game(kScreen);
    SharedPads pads(fs::absolute("pads"));
    GameSession::Environment environment;
    if (plan.pads)
        environment = {{"LD_PRELOAD", QUACKDASH_VIRTUAL_PADS}, {kPadStatesVariable, fs::absolute("pads").string()}};
    game.start(environment,
        {"--record", file.string(), "--size", "320x240", "--key.mark", "f10", "--computer-players",
            std::to_string(plan.computerPlayers)});
    std::vector<Person> people;
    join(game, plan, pads, people);
    begin(game, plan, pads);
    playOn(game, plan, file, people);
    if (game.quit() != 0) throw std::runtime_error("the game failed:\n" + game.program().output());
}

} // namespace

int main(int argc, char** argv)
try {
    if (argc < 2) {
        std::fprintf(stderr, "usage: play_recordings FOLDER [NAME]\n");
        return EXIT_FAILURE;
    }
    const fs::path folder = fs::absolute(argv[1]);
    for (const Plan& plan : kPlans)
        if (argc < 3 || std::string(argv[2]) == plan.name) play(plan, folder / (std::string(plan.name) + ".quackdash"));
    return EXIT_SUCCESS;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return EXIT_FAILURE;
}
