#pragma once

#include "match/MatchRules.h"
#include "physics/PhysicNode.h"
#include "physics/PhysxManager.h"
#include "physics/Terrain.h"
#include "physics/VehicleHandle.h"
#include "platform/DataFolder.h"
#include "players/IStage.h"
#include "players/Player.h"
#include "scene/SceneGraph.h"
#include "testing/DataScratch.h"
#include "testing/ScriptedDevice.h"
#include "testing/ScriptedKeyboard.h"
#include "testing/SteppedClock.h"

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A stage without a window: shows nothing, but remembers what it was asked for.
class SilentStage : public IStage, public ICarDress {
public:
    struct Line {
        std::string text;
        double x, y;
    };

    ICarDress& dressCar(const CarNodes& nodes, const glm::vec4& colour, bool) override
    {
        cars.push_back(nodes);
        colours.push_back(colour);
        return *this;
    }
    void setEmitterPosition(const glm::vec3& position) override { emitterPosition = position; }
    void setThrottle(float newThrottle) override { throttle = newThrottle; }
    Attachable* dressBall(Node&, const glm::vec4&) override { return nullptr; }
    void undressBall(Attachable*) override {}
    void playSound(const std::string& name, float volume) override
    {
        ++sounds[{name, volume}];
        lastVolume = volume;
    }
    void addText(const std::string& text, double x, double y) override { lines.push_back({text, x, y}); }
    glm::ivec2 getWindowSize() const override { return {1024, 768}; }

    /// How often that sound was played, at that volume or at any.
    int count(const std::string& name, std::optional<float> volume = {}) const
    {
        int times = 0;
        for (const auto& [sound, played] : sounds) {
            if (sound.first == name && sound.second == volume.value_or(sound.second)) times += played;
        }
        return times;
    }

    std::vector<CarNodes> cars;
    std::vector<glm::vec4> colours;
    std::map<std::pair<std::string, float>, int> sounds; ///< how often each was played at each volume
    float lastVolume = 0;                                ///< of the sound played last
    float throttle = 0;                                  ///< of whoever was heard last
    std::vector<Line> lines;                             ///< of the last pass
    glm::vec3 emitterPosition{0.0f};                     ///< of whoever smoked last
};

/// Takes the physics world down as it goes: after the rules, whose shots in flight give their bodies back to the world.
struct WorldEnd {
    ~WorldEnd() { delete PhysxManager::instance(); }
};

/// A whole match without a window: the real rules, physics, ground and scene, a keyboard to hold keys on and a clock
/// that runs only when passes are made. The physics world goes with it.
class HeadlessMatch {
public:
    enum class Ground {
        kGame, ///< the game's own height picture
        kFlat, ///< flat, eight units below where cars enter
    };

    /// passSeconds: see SteppedClock.
    explicit HeadlessMatch(Ground ground = Ground::kGame, double passSeconds = 0) : clock(passSeconds)
    {
        rules.setWorld(&graph, &stage);
        createTerrain(ground);
        FrameTimer::getInstance()->tick();
        graph.update();
    }
    HeadlessMatch(const HeadlessMatch&) = delete;
    HeadlessMatch& operator=(const HeadlessMatch&) = delete;

    /// A person with a scripted device of their own joins.
    Player& join()
    {
        rules.addPlayer(&devices.emplace_back());
        graph.update();
        return *rules.getPlayers().back();
    }
    static ScriptedDevice& deviceOf(const Player& player) { return static_cast<ScriptedDevice&>(player.getDevice()); }

    Player& addComputerPlayer()
    {
        rules.addComputerPlayer();
        graph.update();
        return *static_cast<Player*>(rules.getActors().back());
    }

    /// Puts a car there, upright and facing +z.
    void place(Player& player, const glm::vec3& position)
    {
        player.getVehicle()->placeAt(position);
        graph.update();
    }

    /// One pass of the match as the main loop makes it.
    void pass()
    {
        stage.lines.clear();
        FrameTimer::getInstance()->tick();
        rules.updateMatch();
        rules.stepPhysics();
        graph.update();
    }

    void passes(int count)
    {
        for (int i = 0; i < count; ++i) pass();
    }

    ScriptedKeyboard keys;
    SteppedClock clock;
    SilentStage stage;
    SceneGraph graph;
    std::deque<ScriptedDevice> devices; // of those who joined

    WorldEnd worldEnd;
    MatchRules rules;

    const Terrain& getTerrain() const { return *terrain; }

private:
    void createTerrain(Ground ground)
    {
        std::optional<DataScratch> scratch;
        if (ground == Ground::kFlat) {
            constexpr int kHeightByte = 214; // 42 units
            scratch.emplace();
            scratch->writeTga("Textures/map.tga", 512, 512, 1, [](int, int, int) { return kHeightByte; });
        } else {
            enterDataFolder();
        }
        terrain = PhysxManager::instance()->createTerrain();
        graph.getRoot()->addChild(terrain->getNode());
        rules.setTerrain(terrain);
    }

    const Terrain* terrain = nullptr; // the physics world's
};
