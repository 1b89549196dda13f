#include "replay/Identity.h"

#include "base/Fingerprint.h"
#include "base/FrameTimer.h"

#include <PxPhysicsVersion.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <vector>

namespace fs = std::filesystem;

namespace {

void addFile(Fingerprint& sum, const fs::path& path)
{
    std::array<char, 65536> block;
    std::ifstream file(path, std::ios::binary);
    do {
        file.read(block.data(), block.size());
        sum.add(block.data(), static_cast<std::size_t>(file.gcount()));
    } while (file);
}

/// By the names and bytes of all files, in the order of their names.
std::uint64_t fingerprintOfData()
{
    std::vector<fs::path> files;
    std::error_code error;
    for (const char* folder : {"Audio", "Models", "Shader", "Textures"})
        for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
            if (entry->is_regular_file(error)) files.push_back(entry->path());
    std::ranges::sort(files);

    Fingerprint sum;
    for (const fs::path& file : files) {
        sum.add(file.generic_string());
        addFile(sum, file);
    }
    return sum.value();
}

std::uint64_t fingerprintOfProgram()
{
    Fingerprint sum;
    addFile(sum, "/proc/self/exe");
    return sum.value();
}

std::string sdkVersion()
{
    return std::to_string(PX_PHYSICS_VERSION_MAJOR) + "." + std::to_string(PX_PHYSICS_VERSION_MINOR) + "." +
        std::to_string(PX_PHYSICS_VERSION_BUGFIX);
}

/// Call `work` with each word, in the order of a recording.
template <class Controls, class Work>
void forEachWord(Controls& controls, const Work& work)
{
    for (auto& half : controls.halves)
        for (auto& word : half) work(word);
    for (auto& pad : controls.pads)
        for (auto& word : pad) work(word);
}

} // namespace

recording::Header describeThisPlay(unsigned seed, const StartOptions& start, const ControlOptions& controls)
{
    recording::Header header;
    header.set_game(QUACKDASH_VERSION);
    header.set_sdk(sdkVersion());
    header.set_compiler(__VERSION__);
    header.set_program(fingerprintOfProgram());
    header.set_data(fingerprintOfData());
    header.set_seed(seed);
    header.set_start_ms(static_cast<int>(FrameTimer::getInstance()->getTimeMs()));
    header.set_computer_players(start.computerPlayers);
    for (const JoinDevice device : start.join) header.add_join(static_cast<int>(device));
    for (const std::string& name : start.names) header.add_names(name);
    forEachWord(controls, [&header](const std::string& word) { header.add_controls(word); });
    return header;
}

std::string findObstacle(const recording::Header& header)
{
    if (header.game() != QUACKDASH_VERSION)
        return "recorded by version " + header.game() + " of the game, and this is " QUACKDASH_VERSION;
    if (header.sdk() != sdkVersion())
        return "recorded with version " + header.sdk() + " of the physics SDK, and this is " + sdkVersion();
    if (header.data() != fingerprintOfData()) return "recorded with other data";
    return "";
}

bool isFromThisProgram(const recording::Header& header)
{
    return header.program() == fingerprintOfProgram();
}

StartOptions startOf(const recording::Header& header)
{
    StartOptions start;
    start.seed = header.seed();
    start.computerPlayers = header.computer_players();
    for (const int device : header.join()) start.join.push_back(static_cast<JoinDevice>(device));
    std::ranges::copy(header.names(), start.names.begin());
    return start;
}

ControlOptions controlsOf(const recording::Header& header)
{
    ControlOptions controls;
    auto word = header.controls().begin();
    forEachWord(controls, [&word](std::string& of) { of = *word++; });
    return controls;
}
