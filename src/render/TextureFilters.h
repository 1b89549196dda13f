#pragma once

/// The two debug switches of texture filtering. Each change is applied to every texture of the asset library at once.
class TextureFilters {
public:
    void toggleMagnification(); ///< linear or nearest
    void cycleMinification();   ///< 0 no mipmaps, 1 nearest mipmap, 2 between mipmaps

private:
    void apply() const;

    bool linearMagnification = true;
    int minificationMode = 2;
};
