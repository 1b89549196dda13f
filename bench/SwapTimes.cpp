// Preloaded into the game: stands before GLFW's glfwSwapBuffers and writes the moment of each call, as nanoseconds of
// the steady clock in a std::int64_t, to the file that QUACKDASH_SWAP_TIMES names. That is one short write to the page
// cache a frame. The window library looks glXSwapBuffers up by a handle of its own, so that one cannot be preloaded.

#include <GLFW/glfw3.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>

namespace {

int openFile()
{
    const char* name = std::getenv("QUACKDASH_SWAP_TIMES");
    const int file = name ? open(name, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644) : -1;
    if (file < 0) std::abort(); // a count of nothing would be taken for a game that stands still
    return file;
}

void noteSwap()
{
    static const int file = openFile();
    const std::int64_t now = std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
    if (write(file, &now, sizeof now) != sizeof now) std::abort();
}

} // namespace

extern "C" void glfwSwapBuffers(GLFWwindow* window)
{
    static const auto real = reinterpret_cast<decltype(&glfwSwapBuffers)>(dlsym(RTLD_NEXT, "glfwSwapBuffers"));
    real(window);
    noteSwap();
}
