#pragma once

#include "testing/ChildProcess.h"
#include "testing/DataScratch.h"
#include "testing/VirtualDisplay.h"

#include <map>
#include <memory>
#include <regex>
#include <string>
#include <vector>

/// The built program on a virtual display of its own, over a scratch copy of the data folder, which is also the test's
/// working directory: spoil files there before a start. Runs may follow one another. For waits see ChildProcess.
class GameSession {
public:
    using Environment = std::map<std::string, std::string>;

    GameSession() { data.copyGameData(); }

    explicit GameSession(const char* screen) : display(screen) { data.copyGameData(); } ///< see VirtualDisplay

    /// Start the program with these variables beside the test's own, and these arguments, without waiting. Its user has
    /// no settings but those that the test puts into the folder quackdash.
    void launch(Environment environment, std::vector<std::string> arguments = {})
    {
        for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            environment.insert({folder, data.path()});
        arguments.insert(arguments.begin(), QUACKDASH_PROGRAM);
        const std::filesystem::path log = data.path() / "log.txt";
        process = std::make_unique<ChildProcess>(ChildProcess::Settings{
            .command = arguments, .output = log, .environment = environment});
    }

    /// Start the program with these arguments, away from any display, and return its exit status.
    int ask(const std::vector<std::string>& arguments)
    {
        launch({{"ALSOFT_DRIVERS", "null"}}, arguments);
        return process->waitForExit();
    }

    /// Start the program and wait until it has come to the registration and has its window.
    void start(Environment environment = {}, const std::vector<std::string>& arguments = {})
    {
        // Sound goes nowhere: the same run, and the same log, on machines with and without a sound device.
        environment.insert({{"DISPLAY", display.getName()}, {"ALSOFT_DRIVERS", "null"}});
        launch(environment, arguments);
        process->waitForOutput("Enter RegisterPlayersGamestate");
        process->waitFor("a window", [this] { return display.findWindow("Quackdash"); });
    }

    /// Hold the key until the program has printed that text once more.
    void holdUntil(const std::string& key, const std::string& text)
    {
        const int before = process->count(text);
        display.press({key});
        process->waitForOutput(text, before + 1);
        display.release({key});
    }

    /// Have both keyboard halves join and the arrow half start the match.
    void startMatch()
    {
        for (const char* shoot : {"k", "1"}) holdUntil(shoot, "Player registered");
        holdUntil("Return", "Enter PlayGamestate");
    }

    /// Press Escape and return the exit status.
    int quit()
    {
        display.press({"Escape"});
        const int status = process->waitForExit();
        display.release({"Escape"});
        return status;
    }

    /// Return the lines of the log that report something bad; empty for a run without a fault.
    std::string complaints() const
    {
        const std::string log = process->output();
        const std::regex complaint(".*(OpenGL Error:|ERROR \\| |WARNING \\| ).*\n");
        std::string found;
        for (std::sregex_iterator line(log.begin(), log.end(), complaint), end; line != end; ++line)
            found += line->str();
        return found;
    }

    ChildProcess& program() { return *process; }
    VirtualDisplay& screen() { return display; }

private:
    DataScratch data;
    VirtualDisplay display;
    std::unique_ptr<ChildProcess> process;
};
