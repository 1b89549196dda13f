#include "platform/ScreenSaver.h"

#include "platform/DesktopScreenSaver.h"

std::unique_ptr<ScreenSaver> makeScreenSaver(const ScreenSaverOptions& options)
{
    if (options.keepAwake) return std::make_unique<DesktopScreenSaver>();
    return std::make_unique<ScreenSaver>();
}
