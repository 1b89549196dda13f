#include "platform/Monitors.h"

#include "platform/WindowLibrary.h"

#include <GLFW/glfw3.h>

std::optional<std::vector<std::string>> monitorNames()
{
    if (!startWindowLibrary()) return std::nullopt;
    int count = 0;
    GLFWmonitor** const monitors = glfwGetMonitors(&count);
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) names.emplace_back(glfwGetMonitorName(monitors[i]));
    glfwTerminate();
    return names;
}
