#include "replay/HeadlessPlay.h"

#include "base/Logger.h"
#include "base/Random.h"
#include "base/SteppedClock.h"
#include "match/BareMatch.h"
#include "players/NoPresentation.h"
#include "players/Player.h"
#include "replay/Identity.h"
#include "replay/Recorder.h"
#include "replay/RecordingLimits.h"
#include "replay/Source.h"
#include "replay/WorldSample.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <optional>

namespace {

constexpr double kMillisecondsASecond = 1000;

/// The computed half of the game's states.
void updateMatch(recording::State state, Match& match, PlayerRegistration& registration)
{
    if (state == recording::REGISTRATION) registration.update();
    if (state == recording::MATCH) match.updateMatch();
}

void printRanking(const Match& match)
{
    std::vector<const Player*> players(match.getActors().begin(), match.getActors().end());
    std::ranges::stable_sort(players, std::greater(), &Player::getScore);
    for (std::size_t i = 0; i < players.size(); ++i)
        std::cout << i + 1 << ". " << players[i]->getName() << ", " << players[i]->getDeaths() << " deaths\n";
    std::cout << std::flush;
}

/// Computer players and nobody else.
StartOptions withoutPeople(StartOptions start)
{
    start.join.clear();
    return start;
}

/// Print what came of the comparison. Return the exit status.
int judge(const Comparison& comparison, const RecordingReader& recording)
{
    const bool isOurs = isFromThisProgram(recording.getHeader());
    std::cout << recording.getPassCount() << " passes, " << recording.getLength() / kMillisecondsASecond << " s; "
              << comparison.getChecks() - comparison.getDifferent() << " of " << comparison.getChecks()
              << " checks agree\n";
    if (comparison.getDifferent() > 0)
        std::cout << "Differs first in " << comparison.getFirst() << "; cars are at most " << comparison.getDistance()
                  << " m from where they were\n";
    std::cout << std::flush;
    return isOurs && comparison.getDifferent() > 0 ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace

int playHeadless(const StartOptions& asked, unsigned seed, int passes, const std::filesystem::path& record)
{
    const StartOptions start = withoutPeople(asked);
    const SteppedClock clock;
    FrameTimer::getInstance()->tick();
    sowRandom(seed);
    std::optional<Recorder> recorder;
    if (!record.empty()) recorder.emplace(record, describeThisPlay(seed, start));

    NoPresentation nobody;
    BareMatch match(nobody);
    PlayerRegistration(match.getMatch()).admit(start);
    for (int pass = 0; pass < passes; ++pass) {
        FrameTimer::getInstance()->tick();
        if (recorder) recorder->beginPass(recording::MATCH);
        match.getMatch().updateMatch();
        match.step();
        if (recorder) recorder->endPass(match.getMatch());
    }
    printRanking(match.getMatch());
    return EXIT_SUCCESS;
}

int replayHeadless(Source& source)
{
    Comparison comparison;
    tellHeadless(source, [&](const Match& match) {
        if (source.getPass().has_sample()) comparison.check(source.getPassNumber(), source.getPass().sample(), match);
    });
    return judge(comparison, source.getRecording());
}

void tellHeadless(Source& source, const std::function<void(const Match&)>& passDone)
{
    source.begin();
    NoPresentation nobody;
    BareMatch match(nobody);
    const StartOptions start = startOf(source.getRecording().getHeader());
    PlayerRegistration registration(match.getMatch(), source.makeDevices(), start.names);
    registration.admit(start);
    while (source.nextPass()) {
        FrameTimer::getInstance()->tick();
        if (isPassTooLong()) continue;
        updateMatch(source.getPass().state(), match.getMatch(), registration);
        match.step();
        passDone(match.getMatch());
    }
    printRanking(match.getMatch());
}
