#include "platform/WindowLibrary.h"

#include <GLFW/glfw3.h>

bool startWindowLibrary()
{
#ifdef GLFW_PLATFORM // older ones know no other platform
    glfwInitHint(GLFW_PLATFORM, GLFW_PLATFORM_X11);
#endif
    return glfwInit() == GLFW_TRUE;
}
