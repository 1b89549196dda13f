#include "testing/Snapshots.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "base/Logger.h"
#include "input/AIController.h"
#include "options/OptionTable.h"
#include "physics/PhysicNode.h"
#include "physics/Terrain.h"
#include "physics/VehicleHandle.h"
#include "players/Player.h"
#include "testing/OwnProcess.h"
#include "testing/PngFile.h"
#include "testing/TestGame.h"

#include <GL/glew.h>
#include <PxPhysicsAPI.h>
#include <glm/gtc/matrix_transform.hpp>

#include <cmath>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <numbers>

namespace {

using View = Snapshot::View;

constexpr double kPassSeconds = 1.0 / 30.0;
constexpr int kPeople = 6;             // at most: the inner ring
constexpr int kComputers = 10;         // at most: the outer ring
constexpr float kInnerRadius = 30.0f;  // world units
constexpr float kOuterRadius = 48.0f;  // world units
constexpr float kRestingHeight = 1.2f; // of a chassis above the ground

constexpr Snapshot kSnapshots[] = {
    {"registration", View::kRegistration, 2, 12, 60},
    {"duel", View::kMatch, 2, 4, 170},
    {"three", View::kMatch, 3, 8, 170},
    {"four", View::kMatch, 4, 8, 170},
    {"five", View::kMatch, 5, 12, 170},
    {"six", View::kMatch, 6, 16, 170},
    {"leader", View::kLeader, 6, 6, 170},
    {"help", View::kHelp, 2, 6, 170},
    {"debug", View::kDebug, 2, 6, 170},
    {"horizon", View::kHorizon, 1, 2, 30},
    {"comfort", View::kMatch, 2, 6, 170, true},
};

/// A person's device whose buttons the computer presses.
class GuidedDevice final : public AIController {
public:
    explicit GuidedDevice(int number) : AIController(number), seat(number) {}

    std::string getName() const override
    {
        constexpr const char* kNames[kPeople] = {"Pfeil", "WASD", "XBOX 1", "XBOX 2", "XBOX 3", "XBOX 4"};
        return kNames[seat];
    }

private:
    int seat;
};

GameOptions optionsFor(const Snapshot& snapshot)
{
    Options options;
    if (!snapshot.comfort) return options;
    findOption("comfort")->value.read(options, "");
    options.window = {.size = {1280, 720}};
    options.text.language = Language::En;
    options.start.names = {"", "", "", "", "Granny", "Kim"};
    return options;
}

/// The game and the people who play it.
class Scene : public TestGame {
public:
    explicit Scene(const GameOptions& given) : TestGame(kPassSeconds, given) {}

    /// Draw the snapshot into its file. Return the exit status.
    int take(const Snapshot& snapshot, const std::string& folder)
    try {
        if (!start()) return EXIT_FAILURE;
        invite(snapshot);
        play(snapshot.passes);
        turnTo(snapshot.view);
        updatePass();
        writePng(folder + "/" + snapshot.name + ".png", draw());
        const auto text = [](GLenum name) { return reinterpret_cast<const char*>(glGetString(name)); };
        std::ofstream(folder + "/driver.txt") << text(GL_VERSION) << ", " << text(GL_RENDERER) << "\n";
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        logLine(0) << error.what() << std::endl;
        return EXIT_FAILURE;
    }

private:
    void changeState(const char* name) { getCore()->getStateManager()->changeState(name); }

    void invite(const Snapshot& snapshot)
    {
        Match& match = getMatch();
        for (int i = 0; i < snapshot.people; ++i) {
            match.addPlayer(devices.emplace_back(i),
                options.start.names.at(static_cast<std::size_t>((i + 4) % kPeople)));
            devices.back().setPlayer(*match.getPlayers().back(), match);
            place(*match.getActors().back(), kInnerRadius, i, kPeople);
        }
        for (int i = 0; match.getActorCount() < snapshot.participants; ++i) {
            match.addComputerPlayer();
            place(*match.getActors().back(), kOuterRadius, i, kComputers);
        }
        if (snapshot.view != View::kRegistration) changeState("PlayGamestate");
    }

    /// Put a car on the ground, number `seat` of so many in a ring, its front towards the middle.
    void place(const Player& player, float radius, int seat, int seats)
    {
        constexpr int kSide = 64, kHalf = kSide / 2, kSpacing = 8; // samples of the ground, world units between them
        const float around = 2 * std::numbers::pi_v<float> * static_cast<float>(seat) / static_cast<float>(seats);
        const auto sampleAt = [](float along) { return static_cast<int>(std::lround(along / kSpacing)) + kHalf; };
        const int row = sampleAt(radius * std::sin(around)), column = sampleAt(-radius * std::cos(around));
        const std::vector<glm::vec3> ground = getGround().getVertices();
        const auto sample = static_cast<std::size_t>(row) * kSide + static_cast<std::size_t>(column);
        const auto unitsAt = [](int index) { return static_cast<float>((index - kHalf) * kSpacing); };
        const physx::PxVec3 position(unitsAt(row), ground[sample].y + kRestingHeight, unitsAt(column));
        const physx::PxQuat heading(std::atan2(-position.x, -position.z), physx::PxVec3(0, 1, 0));
        player.getVehicle()->getActor()->setGlobalPose(physx::PxTransform(position, heading));
    }

    void turnTo(View view)
    {
        if (view == View::kRegistration || view == View::kHelp) getKeys().hold({GLFW_KEY_F1});
        if (view == View::kDebug) getKeys().hold({GLFW_KEY_F6});
        if (view == View::kLeader) flyTo(leaderPose());
        if (view == View::kHorizon) flyTo(horizonPose());
    }

    void flyTo(const glm::mat4& pose)
    {
        changeState("DebugGamestate");
        getScene().getRoot()->find("CameraNode")->setTransform(pose);
    }

    /// Beside the leader's car, a little ahead of it, looking at the driver.
    glm::mat4 leaderPose()
    {
        const Player* leader = getMatch().getRanking().getLeader(0);
        const glm::mat4 car = (leader ? *leader : *getMatch().getActors().front()).getChassisTransform();
        return car * glm::inverse(glm::lookAt(glm::vec3(3.2f, 2.6f, 5.2f), glm::vec3(0, 1.5f, 0), glm::vec3(0, 1, 0)));
    }

    static glm::mat4 horizonPose()
    {
        return glm::inverse(glm::lookAt(glm::vec3(150, 62, -170), glm::vec3(40, 30, 60), glm::vec3(0, 1, 0)));
    }

    std::deque<GuidedDevice> devices;
};

} // namespace

std::span<const Snapshot> snapshots()
{
    return kSnapshots;
}

bool take(const Snapshot& snapshot, const std::string& folder)
{
    return inOwnProcess([&] { return Scene(optionsFor(snapshot)).take(snapshot, folder); }) == EXIT_SUCCESS;
}
