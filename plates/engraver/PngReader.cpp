#include "plates/engraver/PngReader.h"

#include <png.h>
#include <stdexcept>
#include <string>

namespace tambrelle::engraver {

Picture readPng(const std::filesystem::path& path) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&image, path.c_str()) == 0)
        throw std::runtime_error("cannot read " + path.string() + ": " + image.message);
    image.format = PNG_FORMAT_RGB;
    Picture picture;
    picture.width = static_cast<int>(image.width);
    picture.height = static_cast<int>(image.height);
    picture.rgb.resize(PNG_IMAGE_SIZE(image));
    if (png_image_finish_read(&image, nullptr, picture.rgb.data(), 0, nullptr) == 0)
        throw std::runtime_error("cannot read " + path.string() + ": " + image.message);
    return picture;
}

std::uint64_t fingerprint(const Picture& picture) {
    std::uint64_t hash = 14695981039346656037ULL;
    const auto add = [&hash](unsigned value) { hash = (hash ^ value) * 1099511628211ULL; };
    add(static_cast<unsigned>(picture.width));
    add(static_cast<unsigned>(picture.height));
    for (const unsigned char c : picture.rgb)
        add(c);
    return hash;
}

} // namespace tambrelle::engraver
