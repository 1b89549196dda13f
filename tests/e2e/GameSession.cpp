#include "GameSession.h"

#include <chrono>
#include <sstream>
#include <thread>

namespace {

constexpr auto kHold = std::chrono::milliseconds(350);    // longer than two frames of a busy machine
constexpr auto kRelease = std::chrono::milliseconds(250); // a frame must see the key up, or the next press is none
constexpr double kStartSeconds = 60;
constexpr double kExitSeconds = 30;

} // namespace

GameSession::GameSession() : display(std::filesystem::current_path())
{
    scratch.copyGameData();
}

void GameSession::launch(const std::vector<std::string>& environment, bool withDisplay)
{
    // Sound goes nowhere: the same run, and the same log, on machines with and without a sound device.
    std::vector<std::string> command{"env", "ALSOFT_DRIVERS=null"};
    command.insert(command.end(), environment.begin(), environment.end());
    command.push_back(QUACKDASH_PROGRAM);
    process = std::make_unique<ChildProcess>(ChildProcess::Settings{
        command, {}, withDisplay ? display.name() : "", std::filesystem::current_path() / "log.txt"});
}

bool GameSession::start()
{
    launch();
    return waitForLog("Enter RegisterPlayersGamestate", 1, kStartSeconds) &&
        display.waitForWindow("Quackdash", kStartSeconds) && waitUntil(kStartSeconds, [this] {
            return detailShare(display.look(), {0, 0, 200, 200}) > 0.01 || !process->isRunning();
        });
}

void GameSession::tap(const std::string& key)
{
    display.pressKey(key);
    std::this_thread::sleep_for(kHold);
    display.releaseKey(key);
    std::this_thread::sleep_for(kRelease);
}

bool GameSession::startMatch()
{
    for (const char* key : {"k", "1"}) tap(key);
    if (!waitForLog("Player registered", 2)) return false;
    tap("Return");
    return waitForLog("Enter PlayGamestate");
}

bool GameSession::waitForLog(const std::string& text, int times, double seconds)
{
    return waitUntil(seconds, [&] { return countInLog(text) >= times || !process->isRunning(); }) &&
        countInLog(text) >= times;
}

int GameSession::countInLog(const std::string& text) const
{
    const std::string all = log();
    int count = 0;
    for (std::size_t at = all.find(text); at != std::string::npos; at = all.find(text, at + text.size())) ++count;
    return count;
}

std::string GameSession::complaints() const
{
    std::string found;
    std::istringstream lines(log());
    for (std::string line; std::getline(lines, line);) {
        for (const char* text : {"OpenGL Error:", "ERROR | ", "WARNING | "}) {
            if (line.find(text) != std::string::npos) found += line + '\n';
        }
    }
    return found;
}

bool GameSession::waitForChange(const Picture& before, const ScreenArea& region, double share, double seconds)
{
    return waitUntil(seconds, [&] { return changedShare(before, display.look(), region) > share; });
}

int GameSession::quit()
{
    display.pressKey("Escape");
    const int status = waitForExit();
    display.releaseKey("Escape");
    return status;
}

int GameSession::waitForExit()
{
    return process->waitForExit(kExitSeconds).value_or(-1);
}
