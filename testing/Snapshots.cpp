#include "testing/Snapshots.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "input/AIController.h"
#include "physics/PhysicNode.h"
#include "physics/Terrain.h"
#include "physics/VehicleHandle.h"
#include "players/Player.h"
#include "render/Renderer.h"
#include "render/TextRenderer.h"
#include "testing/FrameRecorder.h"
#include "testing/ScriptedKeyboard.h"
#include "testing/TestGame.h"

#include <GL/glew.h>
#include <PxPhysicsAPI.h>
#include <glm/gtc/matrix_transform.hpp>

#include <cmath>
#include <deque>
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

/// The game and the people who play it.
class Scene {
public:
    Scene() : game(kPassSeconds) {}

    bool start(const Snapshot& snapshot)
    {
        if (!game.start()) return false;
        keys.emplace();
        Match& match = game.getMatch();
        for (int i = 0; i < snapshot.people; ++i) {
            match.addPlayer(devices.emplace_back(i));
            devices.back().setPlayer(*match.getPlayers().back(), match);
            place(*match.getActors().back(), kInnerRadius, i, kPeople);
        }
        for (int i = 0; match.getActorCount() < snapshot.participants; ++i) {
            match.addComputerPlayer();
            place(*match.getActors().back(), kOuterRadius, i, kComputers);
        }
        if (snapshot.view != View::kRegistration) changeState("PlayGamestate");
        return true;
    }

    void play(int passes)
    {
        for (int i = 0; i < passes; ++i) {
            game.updatePass();
            game.getScene().update();
        }
    }

    Picture look(View view)
    {
        if (view == View::kRegistration || view == View::kHelp) keys->hold({GLFW_KEY_F1});
        if (view == View::kDebug) keys->hold({GLFW_KEY_F6});
        if (view == View::kLeader) flyTo(leaderPose());
        if (view == View::kHorizon) flyTo(horizonPose());
        game.updatePass();
        FrameRecorder recorder;
        game.getRenderer().setFrameProbe(&recorder);
        game.drawPass();
        game.getRenderer().setFrameProbe(nullptr);
        return recorder.getPicture();
    }

    /// Return what draws: the names and versions of GL and of the driver's renderer.
    static std::string driver()
    {
        const auto text = [](GLenum name) { return std::string(reinterpret_cast<const char*>(glGetString(name))); };
        return text(GL_VERSION) + ", " + text(GL_RENDERER);
    }

    ~Scene() { game.getRenderer().terminate(); }

private:
    void changeState(const char* name) { game.getCore()->getStateManager()->changeState(name); }

    /// Put a car on the ground, number `seat` of so many in a ring, its front towards the middle.
    void place(const Player& player, float radius, int seat, int seats)
    {
        constexpr int kSide = 64, kSpacing = 8; // samples of the ground, world units between them
        const float around = 2 * std::numbers::pi_v<float> * static_cast<float>(seat) / static_cast<float>(seats);
        const auto sampleAt = [](float along) { return static_cast<int>(std::lround(along / kSpacing)) + kSide / 2; };
        const int row = sampleAt(radius * std::sin(around)), column = sampleAt(-radius * std::cos(around));
        const std::vector<glm::vec3> ground = game.getGround().getVertices();
        const float height = ground[static_cast<std::size_t>(row * kSide + column)].y + kRestingHeight;
        const physx::PxVec3 position(static_cast<float>((row - kSide / 2) * kSpacing), height,
            static_cast<float>((column - kSide / 2) * kSpacing));
        const physx::PxQuat heading(std::atan2(-position.x, -position.z), physx::PxVec3(0, 1, 0));
        player.getVehicle()->getActor()->setGlobalPose(physx::PxTransform(position, heading));
    }

    void flyTo(const glm::mat4& pose)
    {
        changeState("DebugGamestate");
        game.getScene().getRoot()->find("CameraNode")->setTransform(pose);
    }

    /// Beside the leader's car, a little ahead of it, looking at the driver.
    glm::mat4 leaderPose()
    {
        const Player* leader = game.getMatch().getRanking().getLeader(0);
        const glm::mat4 car = (leader ? *leader : *game.getMatch().getActors().front()).getChassisTransform();
        return car * glm::inverse(glm::lookAt(glm::vec3(3.2f, 2.6f, 5.2f), glm::vec3(0, 1.5f, 0), glm::vec3(0, 1, 0)));
    }

    static glm::mat4 horizonPose()
    {
        return glm::inverse(glm::lookAt(glm::vec3(150, 62, -170), glm::vec3(40, 30, 60), glm::vec3(0, 1, 0)));
    }

    TestGame game;
    std::optional<ScriptedKeyboard> keys; // once the window no longer puts its own in place
    std::deque<GuidedDevice> devices;
};

} // namespace

std::span<const Snapshot> snapshots()
{
    return kSnapshots;
}

std::optional<TakenPicture> take(const Snapshot& snapshot)
{
    Scene scene;
    if (!scene.start(snapshot)) return std::nullopt;
    scene.play(snapshot.passes);
    const Picture picture = scene.look(snapshot.view);
    return TakenPicture{picture, Scene::driver()};
}
