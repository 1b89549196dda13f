#include "match/HitRecorder.h"

#include "players/Ball.h"
#include "players/BodyOwner.h"

#include <PxPhysicsAPI.h>

#include <algorithm>

using namespace physx;

namespace {

/// Of the balls in a pair, the one that counts the touch: the older one where two balls meet.
Ball* touchedBall(const BodyOwner& a, const BodyOwner& b)
{
    if (!a.ball || !b.ball) return a.ball ? a.ball : b.ball;
    return a.ball->isOlderThan(*b.ball) ? a.ball : b.ball;
}

} // namespace

void HitRecorder::onContact(const PxContactPairHeader& header, const PxContactPair* pairs, PxU32 count)
{
    const PxContactPairHeaderFlags gone =
        PxContactPairHeaderFlag::eREMOVED_ACTOR_0 | PxContactPairHeaderFlag::eREMOVED_ACTOR_1;
    if (header.flags & gone) return;
    for (PxU32 i = 0; i < count; ++i) {
        if (pairs[i].events & PxPairFlag::eNOTIFY_TOUCH_FOUND) recordTouch(header);
    }
}

void HitRecorder::recordTouch(const PxContactPairHeader& header)
{
    const BodyOwner a = BodyOwner::of(*header.actors[0]), b = BodyOwner::of(*header.actors[1]);
    Ball* ball = touchedBall(a, b);
    if (!ball) return;

    ball->registerHit();
    const Hit hit(a.player ? a.player : b.player, ball);
    const bool isKnown = std::find(ballHits.begin(), ballHits.end(), hit) != ballHits.end();
    if (hit.first && !isKnown) ballHits.push_back(hit);
}
