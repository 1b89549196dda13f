#pragma once

/// The two debug switches of texture filtering. Each change is applied to every texture of the asset library at once.
class TextureFilters {
public:
    void toggleMagnification(); ///< switch between linear and nearest
    void cycleMinification();   ///< go on from no mipmaps to the nearest, to between two, and back to none
    void reset();               ///< to linear, between two

private:
    void apply() const;

    bool linearMagnification = true;
    int minificationMode = 2;
};
