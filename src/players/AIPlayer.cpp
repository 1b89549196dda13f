#include "players/AIPlayer.h"

#include "players/IMatch.h"

namespace {

/// Grey, darker with each computer player.
PlayerLook lookOf(int index)
{
    const float grey = static_cast<float>(10 - index) / 10;
    return {.name = "", .colour = {grey, grey, grey, 0}, .sign = "C" + std::to_string(index + 1)};
}

} // namespace

AIPlayer::AIPlayer(IMatch& ownMatch, IPresentation& ownPresentation)
    : AIControllerHolder(ownMatch.computerPlayerCount()),
      Player(ownMatch, ownPresentation, controller, lookOf(ownMatch.computerPlayerCount()))
{
    controller.setPlayer(*this, ownMatch);
}
