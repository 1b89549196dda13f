#pragma once

/// Start GLFW, on X11 in every session: GLEW finds OpenGL's functions by way of X11, and a Wayland client may not place
/// its window. Return false when it cannot start (no display). Harmless when it has started.
bool startWindowLibrary();
