#include "app/HelpText.h"
#include "app/ShownKeys.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using Device = InputDevice;

std::string screenOf(const std::vector<TextLine>& lines)
{
    std::ostringstream screen;
    for (const TextLine& line : wrapped(lines)) screen << line.number << ": " << line.text << '\n';
    return screen.str();
}

TEST(HelpText, NamesTheKeysThatAreSet)
{
    const Buttons drive{Device::kAccelerate, Device::kBrake, Device::kSteerLeft, Device::kSteerRight};
    const auto screen = [&](const ControlOptions& controls) {
        return screenOf({
            {1, "  Fahren     > " + shownKeys(controls, 0, drive, "Pfeiltasten")},
            {2, "  Schiessen  > " + shownKeys(controls, 1, {Device::kShoot}, "1")},
            {4, "   Gas        > " + shownPadButtons(controls, {Device::kAccelerate}, "Rechter Trigger")},
            {5, "  " + shownStart(controls, "Enter oder Start")},
        });
    };
    ControlOptions controls;
    EXPECT_EQ(screen(controls),
        "1:   Fahren     > Pfeiltasten\n2:   Schiessen  > 1\n4:    Gas        > Rechter Trigger\n"
        "5:   Enter oder Start\n");
    controls.halves[0][Device::kBrake] = "delete";
    controls.halves[1][Device::kShoot] = "f10";
    controls.halves[1][Device::kStart] = "q";
    controls.pads[2][Device::kAccelerate] = "rightshoulder";
    controls.pads[3][Device::kAccelerate] = "x";
    EXPECT_EQ(screen(controls),
        "1:   Fahren     > Up, Delete,\n2:                Left, Right\n3:   Schiessen  > F10\n"
        "4:    Gas        > Rechter Trigger,\n5:                 3:Rightshoulder,\n6:                 4:X\n"
        "7:   Enter, Q, Start\n");
    for (ControlOptions::Words& pad : controls.pads) pad[Device::kAccelerate] = pad[Device::kStart] = "y";
    EXPECT_NE(screen(controls).find("Gas        > Y\n"), std::string::npos) << "of all pads alike";
    EXPECT_NE(screen(controls).find("  Enter, Q, Y\n"), std::string::npos);
}

} // namespace
