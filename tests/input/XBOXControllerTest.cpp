#include "input/XBOXController.h"
#include "testing/CapturedLog.h"
#include "testing/SteppedClock.h"
#include "testing/VirtualPad.h"

#include <array>
#include <deque>
#include <gtest/gtest.h>

namespace {

using Motors = VirtualPad::Motors;

class XBOXControllerTest : public testing::Test {
protected:
    XBOXControllerTest() { FrameTimer::getInstance()->tick(); }

    /// Passes take 8 ms or more; smaller steps than that are stretched.
    void wait(int milliseconds)
    {
        clock.sleep((FrameTimer::getInstance()->getTimeMs() + milliseconds + 0.5) / 1000 - clock.now());
        FrameTimer::getInstance()->tick();
    }

    /// One pass of the main loop as players make it.
    void pass(int milliseconds = 10)
    {
        wait(milliseconds);
        for (XBOXController& controller : controllers) {
            if (controller.isConnected()) controller.update();
        }
    }

    /// Which of the four are connected, as in "1-3-".
    std::string connected()
    {
        std::string shown;
        for (XBOXController& controller : controllers)
            shown += controller.isConnected() ? controller.getName().back() : '-';
        return shown;
    }

    bool isShooting(int number)
    {
        return controllers[static_cast<std::size_t>(number - 1)].isPressed(InputDevice::kShoot);
    }

    PadLibrary library;
    SteppedClock clock;
    GamePads pads;
    std::array<XBOXController, 4> controllers{
        XBOXController{1, pads}, XBOXController{2, pads}, XBOXController{3, pads}, XBOXController{4, pads}};
    XBOXController& first = controllers[0];
};

struct ButtonRow {
    SDL_GameControllerButton held;
    int button; // -1 for none
    bool start, back;
};

TEST_F(XBOXControllerTest, EveryPadButtonHasItsRole)
{
    VirtualPad pad;
    const ButtonRow rows[] = {{SDL_CONTROLLER_BUTTON_DPAD_UP, 0, false, false},
        {SDL_CONTROLLER_BUTTON_DPAD_DOWN, 1, false, false}, {SDL_CONTROLLER_BUTTON_DPAD_LEFT, 2, false, false},
        {SDL_CONTROLLER_BUTTON_DPAD_RIGHT, 3, false, false}, {SDL_CONTROLLER_BUTTON_A, 4, false, false},
        {SDL_CONTROLLER_BUTTON_B, 5, false, false}, {SDL_CONTROLLER_BUTTON_START, 6, true, false},
        {SDL_CONTROLLER_BUTTON_BACK, -1, false, true}, {SDL_CONTROLLER_BUTTON_X, -1, false, false}};
    for (const ButtonRow& row : rows) {
        SCOPED_TRACE(SDL_GameControllerGetStringForButton(row.held));
        pad.press(row.held);
        pass();
        for (int button = -1; button <= 7; ++button)
            EXPECT_EQ(first.isPressed(button), button >= 0 && button == row.button) << button;
        EXPECT_EQ(first.isStartPressed(), row.start);
        EXPECT_EQ(first.isBackPressed(), row.back);
        pad.release(row.held);
    }
}

struct AxisRow {
    SDL_GameControllerAxis moved;
    int value; // raw; sticks count downwards
    int axis;
    float amount;
};

TEST_F(XBOXControllerTest, TriggersAndStickMoveTheirAxesOutsideTheDeadZone)
{
    constexpr auto kX = SDL_CONTROLLER_AXIS_LEFTX, kY = SDL_CONTROLLER_AXIS_LEFTY;
    constexpr auto kLeft = SDL_CONTROLLER_AXIS_TRIGGERLEFT, kRight = SDL_CONTROLLER_AXIS_TRIGGERRIGHT;
    constexpr int kThrottle = 0, kBrake = 1, kSteering = 2, kVertical = 3;
    const AxisRow rows[] = {{kRight, 32767, kThrottle, 1.0f}, {kRight, -32768 + 128 * 257, kThrottle, 128 / 255.0f},
        {kLeft, -32768 + 257, kBrake, -1 / 255.0f}, {kX, 7849, kSteering, 7849 / 32768.0f}, {kX, 7848, kSteering, 0.0f},
        {kX, -32768, kSteering, -1.0f}, {kX, -7848, kSteering, 0.0f}, {kY, -32768, kVertical, 32767 / 32768.0f},
        {kY, -7849, kVertical, 0.0f}, {kY, 32767, kVertical, -1.0f}, {SDL_CONTROLLER_AXIS_RIGHTX, 32767, 4, 0.0f}};
    VirtualPad pad;
    pass();
    for (const AxisRow& row : rows) {
        SCOPED_TRACE(testing::Message() << SDL_GameControllerGetStringForAxis(row.moved) << " at " << row.value);
        pad.move(row.moved, row.value);
        pass();
        for (int axis = -1; axis <= 4; ++axis)
            EXPECT_EQ(first.getAxis(axis), axis == row.axis ? row.amount : 0.0f) << "axis " << axis;
        const bool isTrigger = row.moved == kLeft || row.moved == kRight;
        pad.move(row.moved, isTrigger ? -32768 : 0);
    }
}

TEST_F(XBOXControllerTest, ARumbleStopsOnTheFirstUpdateAfterItsEndAndANewOneReplacesIt)
{
    VirtualPad pad;
    pass();
    first.vibrate(600, 30000, 30000);
    pass(100);
    first.vibrate(300, 60000, 50000);
    pass(300);
    EXPECT_EQ(pad.rumbles, std::vector<Motors>({{30000, 30000}, {60000, 50000}})) << "it lasts until after its end";
    pass();
    EXPECT_EQ(pad.rumbles.back(), Motors(0, 0)) << "the replaced request's end holds no more";
    pads.rumble(0, 100, 100);
    pass(1000);
    EXPECT_EQ(pad.rumbles.back(), Motors(100, 100)) << "what has ended once leaves the motors alone";
}

TEST_F(XBOXControllerTest, AnUnpluggedPadIsAtRestAndComesBackToItsSlot)
{
    VirtualPad wheel(3, SDL_JOYSTICK_TYPE_WHEEL), other(1), pad(2); // other kinds of devices take no slot
    pass();
    XBOXController& second = controllers[1];
    second.vibrate(300, 60000, 60000);
    pad.press(SDL_CONTROLLER_BUTTON_A);
    pad.move(SDL_CONTROLLER_AXIS_LEFTX, 32767);
    pass();
    EXPECT_TRUE(second.isPressed(InputDevice::kShoot));

    pad.unplug();
    pass();
    EXPECT_EQ(connected(), "1---");
    EXPECT_FALSE(second.isPressed(InputDevice::kShoot));
    EXPECT_EQ(second.getAxis(InputDevice::kSteeringAxis), 0.0f);
    second.vibrate(300, 60000, 60000);
    second.update();
    EXPECT_EQ(pad.rumbles.size(), 1u);

    pass(100'000);
    pad.plugIn();
    pass();
    EXPECT_EQ(connected(), "12--");
    EXPECT_FALSE(second.isPressed(InputDevice::kShoot)) << "nothing is held on it any more";
    second.vibrate(300, 20000, 20000);
    EXPECT_EQ(pad.rumbles.back(), Motors(20000, 20000));
}

TEST_F(XBOXControllerTest, FourPadsFillFourSlotsAndAFifthWaitsUntilOneIsFreeForGood)
{
    CapturedLog log;
    std::deque<VirtualPad> four;
    for (int slot = 0; slot < 4; ++slot) {
        four.emplace_back();
        pass();
        EXPECT_EQ(four.back().light, slot);
    }
    EXPECT_EQ(connected(), "1234");
    VirtualPad fifth;
    fifth.press(SDL_CONTROLLER_BUTTON_A);
    pass();

    four[2].unplug();
    pass();
    EXPECT_EQ(connected(), "12-4") << "pad 3 may only have lost its connection";
    four[2].plugIn();
    pass();
    EXPECT_EQ(connected(), "1234");
    EXPECT_FALSE(isShooting(3)) << "its own pad is back, not the one that waits";

    four[1].unplug();
    pass();
    pass(60'000);
    EXPECT_EQ(connected(), "1234");
    EXPECT_TRUE(isShooting(2));
    EXPECT_EQ(fifth.light, 1);
    const std::pair<const char*, int> lines[] = {{"DEBUG | Game-pad 2 plugged in: Test pad\n", 2},
        {"DEBUG | Game-pad waits for a free slot: Test pad\n", 1}, {"DEBUG | Game-pad 3 unplugged: Test pad\n", 1},
        {"\n", 9}};
    for (const auto& [line, times] : lines) EXPECT_EQ(log.count(line), times) << line << log.text();
}

TEST_F(XBOXControllerTest, AllFourTogetherAskThePadsOnceAPass)
{
    VirtualPad pad;
    pass();
    const int before = pad.timesAsked;
    pass();
    EXPECT_EQ(pad.timesAsked, before + 1);
}

} // namespace
