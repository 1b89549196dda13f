#include "app/QKD_Game.h"
#include "base/Logger.h"
#include "base/Random.h"
#include "options/OptionLists.h"
#include "options/OptionParser.h"
#include "options/ReadOptions.h"
#include "platform/DataFolder.h"
#include "platform/LargePages.h"
#include "platform/UserFolders.h"
#include "program/Information.h"
#include "program/SettingsFile.h"
#include "replay/HeadlessPlay.h"
#include "replay/Identity.h"
#include "replay/RecordedPlay.h"
#include "replay/ReplayGame.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <random>

namespace fs = std::filesystem;

namespace {

constexpr int kUsageError = 2; // exit status

/// Send what would be seen on the console to a file, if one was asked for: the log, and what libraries and drivers say.
void openLog(const std::string& asked)
{
    constexpr int kMode = 0644; // what the user's mask leaves of it
    if (asked.empty()) return;
    std::error_code error;
    fs::path file = asked;
    if (asked == "auto") {
        file = userFile(UserFolder::State, "log.txt");
        fs::create_directories(file.parent_path(), error);
    }
    const int opened = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kMode);
    if (opened < 0) {
        logLine(1) << "Cannot write the log file " << file.string() << std::endl;
        return;
    }
    dup2(opened, STDOUT_FILENO);
    dup2(opened, STDERR_FILENO);
    close(opened);
}

/// Make the places of respawn those of a seed, and return it.
unsigned sow(std::optional<unsigned> asked)
{
    const unsigned seed = asked ? *asked : std::random_device()();
    if (!asked) logLine(2) << "Places by --seed " << seed << std::endl;
    sowRandom(seed);
    return seed;
}

/// Return the file to record in; empty for none.
fs::path recordingFile(const std::string& asked)
{
    return asked == "auto" ? nextOwnRecording() : fs::path(asked);
}

int playInWindow(const Options& options, Outside& outside)
{
    QKD_Game game(options, outside);
    return game.run() ? EXIT_SUCCESS : EXIT_FAILURE;
}

int playRecorded(const Options& options, unsigned seed, const fs::path& file)
{
    RecordedPlay recorded(file, describeThisPlay(seed, options.start, options.controls));
    return playInWindow(options, recorded);
}

int tell(const Options& options)
{
    const ReplayOptions& replay = options.replay;
    Source source(replay.replay);
    if (!openForTelling(source, replay.replay)) return kUsageError;
    return replay.headless ? replayHeadless(source) : tellInWindow(source, options, replay);
}

int play(const ReadOptions& read)
{
    const Options& options = read.options;
    openLog(options.program.logFile);
    for (const std::string& complaint : read.complaints) logLine(1) << complaint << std::endl;
    const ReplayOptions& replay = options.replay;
    const unsigned seed = sow(options.start.seed);
    if (!enterDataFolder(options.program.dataFolder)) return EXIT_FAILURE;

    if (!replay.replay.empty()) return tell(options);
    const fs::path record = recordingFile(replay.record);
    if (replay.headless) return playHeadless(options.start, seed, replay.passes, record);
    return record.empty() ? playInWindow(options, plainOutside()) : playRecorded(options, seed, record);
}

int answer(const ReadOptions& read)
{
    const Options& options = read.options;
    switch (options.program.request) {
    case Request::Play: return play(read);
    case Request::Help: std::cout << helpText(); break;
    case Request::Version: printVersions(options.program.dataFolder); break;
    case Request::ListDevices: printDevices(); break;
    case Request::WriteSettings:
        for (const std::string& complaint : read.complaints) std::cerr << "quackdash: " << complaint << '\n';
        return writeSettingsFile(read.settingsFile, options) ? EXIT_SUCCESS : EXIT_FAILURE;
    case Request::PrintManual: std::cout << manualText(); break;
    case Request::PrintCompletion: std::cout << completionText(); break;
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char* argv[])
{
    useLargePages(argv);
    const ReadOptions read = readOptions({argv + 1, argv + argc});
    if (read.fault.empty()) return answer(read);
    std::cerr << "quackdash: " << read.fault << "; see --help\n";
    return kUsageError;
}
