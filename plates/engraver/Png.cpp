#include "plates/engraver/Png.h"

#include <array>
#include <fstream>
#include <png.h>
#include <stdexcept>

namespace tambrelle::engraver {

namespace {

void append(png_structp png, png_bytep data, png_size_t size) {
    auto* out = static_cast<std::vector<unsigned char>*>(png_get_io_ptr(png));
    out->insert(out->end(), data, data + size);
}

void flushNothing(png_structp /*png*/) {}

[[noreturn]] void fail(png_structp /*png*/, png_const_charp message) {
    throw std::runtime_error(std::string("PNG: ") + message);
}

class Writer {
public:
    Writer() : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, nullptr)) {
        if (png_ == nullptr)
            throw std::runtime_error("PNG: no memory");
        info_ = png_create_info_struct(png_);
        png_set_write_fn(png_, &bytes_, append, flushNothing);
        png_set_compression_level(png_, 9);
        png_set_compression_mem_level(png_, 9);
    }
    ~Writer() { png_destroy_write_struct(&png_, &info_); }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    void header(int width, int height, int type) {
        png_set_IHDR(png_, info_, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), 8, type,
                     PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    }
    void palette(const IndexedPicture& picture) {
        std::vector<png_color> colours;
        for (const auto& c : picture.palette)
            colours.push_back({c[0], c[1], c[2]});
        png_set_PLTE(png_, info_, colours.data(), static_cast<int>(colours.size()));
    }
    std::vector<unsigned char> rows(const unsigned char* data, std::size_t stride, int height, int filters) {
        png_set_filter(png_, 0, filters);
        png_write_info(png_, info_);
        for (int y = 0; y < height; ++y)
            png_write_row(png_, data + static_cast<std::size_t>(y) * stride);
        png_write_end(png_, nullptr);
        return std::move(bytes_);
    }

private:
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    std::vector<unsigned char> bytes_;
};

} // namespace

std::vector<unsigned char> encodePng(const IndexedPicture& picture) {
    Writer writer;
    writer.header(picture.width, picture.height, PNG_COLOR_TYPE_PALETTE);
    writer.palette(picture);
    return writer.rows(picture.indices.data(), static_cast<std::size_t>(picture.width), picture.height,
                       PNG_FILTER_NONE);
}

std::vector<unsigned char> encodePng(const Picture& picture) {
    Writer writer;
    writer.header(picture.width, picture.height, PNG_COLOR_TYPE_RGB);
    return writer.rows(picture.rgb.data(), static_cast<std::size_t>(picture.width) * 3, picture.height,
                       PNG_ALL_FILTERS);
}

std::vector<unsigned char> encodePlate(const Picture& picture) {
    constexpr std::array counts{96, 72, 48, 32, 20, 12};
    // From one count to the next a file loses a tenth or less.
    constexpr double step = 1.12;
    std::vector<unsigned char> bytes;
    for (std::size_t k = 0; k < counts.size(); ++k) {
        bytes = encodePng(quantise(picture, counts[k]));
        if (bytes.size() <= largestFile)
            break;
        // Too large by more than that: the next would not do either.
        if (static_cast<double>(bytes.size()) > static_cast<double>(largestFile) * step &&
            k + 2 < counts.size())
            ++k;
    }
    return bytes;
}

void writeFile(const std::filesystem::path& path, const std::vector<unsigned char>& bytes) {
    if (path.has_parent_path())
        std::filesystem::create_directories(path.parent_path());
    const std::filesystem::path fresh = path.string() + ".new";
    {
        std::ofstream out(fresh, std::ios::binary);
        out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        if (!out.flush())
            throw std::runtime_error("cannot write " + fresh.string());
    }
    std::filesystem::rename(fresh, path);
}

} // namespace tambrelle::engraver
