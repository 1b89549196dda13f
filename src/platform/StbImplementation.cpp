// The one translation unit that holds the image library's code. A picture's sides are limited, so that no file of a few
// bytes makes the decoder ask for gigabytes: at most 64 MiB of pixels.
#define STB_IMAGE_IMPLEMENTATION
#define STBI_MAX_DIMENSIONS 4096
#define STBI_ONLY_TGA
#define STBI_NO_STDIO
#include <stb/stb_image.h>
#define STB_IMAGE_RESIZE_IMPLEMENTATION
#include <stb/stb_image_resize.h>
