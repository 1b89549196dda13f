// Plays short matches on a clock of its own and writes pictures of the window, as the README and the documents show
// them. Run by tools/screenshots.sh:
//     take_screenshots FOLDER [NAME [PASSES]]
// NAME: that picture only. PASSES: so many passes of 1/120 s into the match instead of the moment chosen here.

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "input/AIController.h"
#include "physics/PhysicNode.h"
#include "players/Player.h"
#include "render/FrameProbe.h"
#include "render/Renderer.h"
#include "render/TextRenderer.h"
#include "scene/SceneGraph.h"
#include "testing/ScriptedKeyboard.h"
#include "testing/TestGame.h"

#include <GL/glew.h>
#include <glm/gtc/matrix_transform.hpp>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <deque>
#include <string>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#define STB_IMAGE_WRITE_IMPLEMENTATION
#include <stb/stb_image_write.h>
#pragma GCC diagnostic pop

namespace {

constexpr int kPassesPerFrame =
    4; // only the last ones are drawn: smoke needs frames of 1/30 s to look as it does in the game

enum class View { Registration, Match, Help, Debug, Leader };

struct Shot {
    const char* name;
    View view;
    int people;
    int participants;
    int passes; // of the match before the picture
};

constexpr Shot kShots[] = {
    {"registration", View::Registration, 2, 12, 240},
    {"duel", View::Match, 2, 4, 1600},
    {"four", View::Match, 4, 8, 900},
    {"six", View::Match, 6, 16, 1600},
    {"leader", View::Leader, 5, 5, 1000},
    {"help", View::Help, 2, 4, 700},
    {"debug", View::Debug, 2, 6, 600},
};

/// A person's device whose buttons the computer presses.
class GuidedDevice final : public AIController {
public:
    explicit GuidedDevice(int number) : AIController(number), seat(number) {}

    std::string getName() const override
    {
        constexpr const char* kNames[] = {"Pfeil", "WASD", "XBOX 1", "XBOX 2", "XBOX 3", "XBOX 4"};
        return kNames[seat];
    }

private:
    int seat;
};

/// Writes the finished picture just before it would be swapped.
class PictureWriter final : public IFrameProbe {
public:
    explicit PictureWriter(std::string pngFile) : file(std::move(pngFile)) {}

    void stepDone(const char* step) override
    {
        if (std::string(step) != "CelPostProc") return;
        constexpr int kWidth = 1024, kHeight = 768;
        std::vector<unsigned char> pixels(std::size_t{3} * kWidth * kHeight);
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        glReadPixels(0, 0, kWidth, kHeight, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
        stbi_flip_vertically_on_write(1);
        written = stbi_write_png(file.c_str(), kWidth, kHeight, 3, pixels.data(), 3 * kWidth) != 0;
    }

    bool written = false;

private:
    std::string file;
};

/// Beside the leader's car, a little ahead of it, looking at the driver.
glm::mat4 closeUpPose(const Player& leader)
{
    const glm::mat4 car = leader.getChassisNode()->getWorldTransform();
    return car * glm::inverse(glm::lookAt(glm::vec3(3.2f, 2.6f, 5.2f), glm::vec3(0, 1.5f, 0), glm::vec3(0, 1, 0)));
}

void playTo(TestGame& game, const Shot& shot, std::deque<GuidedDevice>& devices)
{
    for (int i = 0; i < shot.people; ++i) {
        game.getMatch().addPlayer(devices.emplace_back(i));
        devices.back().setPlayer(*game.getMatch().getPlayers().back(), game.getMatch());
    }
    if (shot.view == View::Registration)
        while (game.getMatch().getActorCount() < shot.participants) game.getMatch().addComputerPlayer();
    else game.startMatch(0, shot.participants);
    for (int pass = 0; pass < shot.passes; ++pass) {
        game.updatePass();
        if (pass % kPassesPerFrame == 0) game.drawPass();
    }
}

/// Runs in a process of its own: participants cannot leave a match. Returns the exit status.
int take(const Shot& shot, const std::string& file)
{
    TestGame game;
    if (!game.start()) return EXIT_FAILURE;
    ScriptedKeyboard keys;
    std::deque<GuidedDevice> devices;
    playTo(game, shot, devices);

    if (shot.view == View::Help || shot.view == View::Registration) keys.hold({GLFW_KEY_F1});
    if (shot.view == View::Debug) keys.hold({GLFW_KEY_F6});
    if (shot.view == View::Leader) {
        game.getCore()->getStateManager()->changeState("DebugGamestate");
        game.getRenderer().getTextRenderer()->clear();
        const Player* leader = game.getMatch().getRanking().getLeader(0);
        if (!leader) return EXIT_FAILURE;
        game.getScene().getRoot()->find("CameraNode")->setTransform(closeUpPose(*leader));
    }
    PictureWriter writer(file);
    if (shot.view != View::Leader) game.updatePass();
    game.getRenderer().setFrameProbe(&writer);
    game.drawPass();
    game.getRenderer().terminate();
    return writer.written ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: take_screenshots FOLDER [NAME [PASSES]]\n");
        return EXIT_FAILURE;
    }
    for (Shot shot : kShots) {
        if (argc > 2 && std::string(argv[2]) != shot.name) continue;
        if (argc > 3) shot.passes = std::max(1, std::atoi(argv[3]));
        const std::string file = std::string(argv[1]) + "/" + shot.name + ".png";
        const pid_t child = fork();
        if (child == 0) std::_Exit(take(shot, file));
        int status = 0;
        waitpid(child, &status, 0);
        if (status != 0) {
            std::fprintf(stderr, "%s was not taken\n", file.c_str());
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
