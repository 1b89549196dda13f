#pragma once

/// How views are drawn.
struct ViewOptions {
    bool wide = false; ///< a camera shows more to its sides in a wide view, and less in a tall one
};
