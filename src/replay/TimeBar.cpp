#include "replay/TimeBar.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace {

std::string clockText(int milliseconds)
{
    const int seconds = milliseconds / 1000;
    std::ostringstream text;
    text << seconds / 60 << ':' << std::setw(2) << std::setfill('0') << seconds % 60;
    return text.str();
}

} // namespace

std::string TimeBar::text(std::size_t width) const
{
    const std::string head = (paused ? "* " : "> ") + clockText(time) + " [";
    const std::string tail = "] " + clockText(length) + (speed == 1 ? "" : " x" + std::to_string(speed));
    const std::size_t cells = std::max(width, head.size() + tail.size() + 1) - head.size() - tail.size();
    const auto cellAt = [&](int milliseconds) {
        const double share = static_cast<double>(milliseconds) / std::max(length, 1);
        return std::min(static_cast<std::size_t>(share * static_cast<double>(cells)), cells - 1);
    };
    std::string bar(cells, '-');
    std::fill_n(bar.begin(), cellAt(time) + (time >= length ? 1 : 0), '=');
    for (const int mark : marks) bar[cellAt(mark)] = '!';
    return head + bar + tail;
}
