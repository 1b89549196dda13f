#include "testing/GameSession.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* kGranted = "DEBUG | The desktop keeps the screen awake\n";
constexpr const char* kWarning = "WARNING | The screen may go dark during the match: ";

// What stands in for a desktop's screen saver: python-dbusmock prints each call with its arguments.
constexpr const char* kStandIn = R"(BUS_NAME = MAIN_IFACE = 'org.freedesktop.ScreenSaver'
MAIN_OBJ = '/org/freedesktop/ScreenSaver'
SYSTEM_BUS = False
def load(mock, parameters):
    mock.last = 4710
    mock.AddMethod('', 'Inhibit', 'ss', 'u', 'self.last += 1; ret = self.last')
    mock.AddMethod('', 'UnInhibit', 'u', '', '')
    print('ready', flush=True)
)";

/// A user with a session bus of their own, once it is started.
class KeepAwakeTest : public testing::Test {
protected:
    void startBus()
    {
        fs::remove(socketPath);
        bus.reset(new ChildProcess({{"dbus-daemon", "--session", "--nofork", "--address=" + address}, "bus.txt"}));
        bus->waitFor("the bus", [this] { return fs::exists(socketPath); });
    }

    std::unique_ptr<ChildProcess> startSaver()
    {
        std::ofstream("saver.py") << kStandIn;
        auto saver = std::make_unique<ChildProcess>(ChildProcess::Settings{
            {"/usr/bin/python3", "-um", "dbusmock", "--session", "--template", "./saver.py"}, "saver.txt", onBus});
        saver->waitForOutput("ready\n");
        return saver;
    }

    void startMatch(const std::vector<std::string>& arguments = {"--keep-awake"})
    {
        game.start(onBus, arguments);
        game.startMatch();
    }

    GameSession game;
    const std::string socketPath = fs::current_path() / "bus", address = "unix:path=" + socketPath;
    const GameSession::Environment onBus{{"DBUS_SESSION_BUS_ADDRESS", address}};
    std::unique_ptr<ChildProcess> bus;
};

TEST_F(KeepAwakeTest, InhibitsTheDesktopsScreenSaverAsLongAsTheMatchRuns)
{
    startBus();
    const auto saver = startSaver();
    startMatch({});
    EXPECT_EQ(game.quit(), 0);
    EXPECT_EQ(saver->count("nhibit"), 0) << "nobody asked for it";

    game.start(onBus, {"--keep-awake"});
    EXPECT_EQ(saver->count("nhibit"), 0) << "there is no match yet";
    game.startMatch();
    saver->waitForOutput(" Inhibit \"Quackdash\" \"A match is running\"\n");
    game.program().waitForOutput(kGranted);
    game.holdUntil("F12", "Enter TestState1\n");
    saver->waitForOutput(" UnInhibit 4711\n");
    game.holdUntil("F11", "Enter PlayGamestate\n");
    saver->waitForOutput(" Inhibit ", 2);
    game.program().waitForOutput(kGranted, 2);
    EXPECT_EQ(saver->count(" UnInhibit "), 1);
    game.screen().closeWindow();
    EXPECT_EQ(game.program().waitForExit(), 0);
    saver->waitForOutput(" UnInhibit 4712\n");
    EXPECT_EQ(game.complaints(), "");
}

TEST_F(KeepAwakeTest, SaysOnceThatNobodyIsThereToAskAndPlaysOn)
{
    const auto complaintOf = [&] {
        game.program().waitForOutput(kWarning);
        EXPECT_EQ(game.quit(), 0);
        return game.complaints();
    };
    startMatch();
    EXPECT_EQ(complaintOf(), kWarning + std::string("Could not connect: No such file or directory\n"));

    game.start(onBus, {"--keep-awake", "--computer-players", "1"});
    game.holdUntil("k", "Player registered"); // the library for pads has looked for a bus: it waits for deaf ones
    const int deaf = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0); // takes connections, and never says a word
    sockaddr_un name{.sun_family = AF_UNIX, .sun_path = {}};
    socketPath.copy(name.sun_path, sizeof name.sun_path - 1);
    ASSERT_TRUE(bind(deaf, reinterpret_cast<sockaddr*>(&name), sizeof name) == 0 && listen(deaf, 1) == 0);
    game.holdUntil("Return", "Enter PlayGamestate");
    EXPECT_EQ(game.quit(), 0);
    EXPECT_EQ(game.complaints(), "");
    close(deaf);

    startBus();
    startMatch();
    const std::string complaint = complaintOf();
    EXPECT_TRUE(std::regex_match(complaint, std::regex("WARNING \\| The screen may .*ScreenSaver.*\n"))) << complaint;
    const auto saver = startSaver();
    startMatch();
    game.program().waitForOutput(kGranted);
    bus.reset();
    EXPECT_EQ(game.quit(), 0);
    EXPECT_EQ(game.complaints(), "");
}

} // namespace
