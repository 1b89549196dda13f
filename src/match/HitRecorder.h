#pragma once

#include <PxSimulationEventCallback.h>

#include <utility>
#include <vector>

class Ball;
class Player;

/// Receives the contact reports of the physics scene and keeps the hits until the match resolves them. Reports come
/// inside the physics step, on the main thread. Outlives the physics world's last step.
class HitRecorder final : public physx::PxSimulationEventCallback {
public:
    using Hit = std::pair<Player*, Ball*>; ///< victim and ball

    /// Return the hits since the last call, in the order in which they were reported; none twice.
    std::vector<Hit> collect() { return std::exchange(ballHits, {}); }

    void onConstraintBreak(physx::PxConstraintInfo*, physx::PxU32) override {}
    void onWake(physx::PxActor**, physx::PxU32) override {}
    void onSleep(physx::PxActor**, physx::PxU32) override {}
    void onContact(const physx::PxContactPairHeader& header, const physx::PxContactPair* pairs,
        physx::PxU32 count) override;
    void onTrigger(physx::PxTriggerPair*, physx::PxU32) override {}
    void onAdvance(const physx::PxRigidBody* const*, const physx::PxTransform*, physx::PxU32) override {}

private:
    void recordTouch(const physx::PxContactPairHeader& header);

    std::vector<Hit> ballHits;
};
