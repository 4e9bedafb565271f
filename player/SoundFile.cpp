#include "player/SoundFile.h"

#include "player/WaveHeader.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <memory>
#include <system_error>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libswresample/swresample.h>
}

namespace tambrelle {

namespace {

constexpr const char* undecodable = "no sound that can be decoded";
constexpr const char* cutShort = "the file is cut short";

/// A sound is held in memory, 20 MB a minute.
constexpr std::size_t mostSamples = std::size_t{10} * 60 * Sound::rate * Sound::channels;

/// What a decoded length may lack of the promised one: encoders pad, and a promise may be an estimate.
constexpr double padding = 0.25; // seconds
constexpr double estimate = 0.05;

template <auto Free>
struct FreeBy {
    template <class T>
    void operator()(T* pointer) const {
        Free(&pointer);
    }
};

using Container = std::unique_ptr<AVFormatContext, FreeBy<avformat_close_input>>;
using Decoder = std::unique_ptr<AVCodecContext, FreeBy<avcodec_free_context>>;
using Converter = std::unique_ptr<SwrContext, FreeBy<swr_free>>;
using Packet = std::unique_ptr<AVPacket, FreeBy<av_packet_free>>;
using Frame = std::unique_ptr<AVFrame, FreeBy<av_frame_free>>;

/// What the decoding libraries would not say, or not in words for a user.
void requireReadable(const std::filesystem::path& path) {
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        throw SoundFileError("a folder");
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw SoundFileError(std::generic_category().message(errno));
    std::array<char, waveHeaderSize> header{};
    file.read(header.data(), header.size());
    if (file.gcount() == 0)
        throw SoundFileError("the file is empty");
    const auto size = std::filesystem::file_size(path, error);
    if (!error && promisesMoreThanFile({header.data(), static_cast<std::size_t>(file.gcount())}, size))
        throw SoundFileError(cutShort);
}

Container open(const std::filesystem::path& path) {
    AVFormatContext* context = nullptr;
    // "file:", lest a name with a colon is taken for an address.
    if (avformat_open_input(&context, ("file:" + path.string()).c_str(), nullptr, nullptr) < 0)
        throw SoundFileError(undecodable);
    Container container(context);
    if (avformat_find_stream_info(context, nullptr) < 0)
        throw SoundFileError(undecodable);
    return container;
}

class Decoding {
public:
    explicit Decoding(const std::filesystem::path& path) : container(open(path)) {
        const AVCodec* codec = nullptr;
        stream = av_find_best_stream(container.get(), AVMEDIA_TYPE_AUDIO, -1, -1, &codec, 0);
        if (stream < 0)
            throw SoundFileError("no sound in the file");
        decoder.reset(avcodec_alloc_context3(codec));
        if (!decoder || avcodec_parameters_to_context(decoder.get(), parameters()) < 0 ||
            avcodec_open2(decoder.get(), codec, nullptr) < 0)
            throw SoundFileError(undecodable);
    }

    Sound run() {
        while (av_read_frame(container.get(), packet.get()) >= 0) {
            if (packet->stream_index == stream)
                decode(packet.get());
            av_packet_unref(packet.get());
        }
        decode(nullptr);
        convert(nullptr);
        return std::move(sound);
    }

    /// Seconds that the file says it lasts, 0 when it does not say.
    [[nodiscard]] double promisedLength() const {
        return container->duration > 0 ? static_cast<double>(container->duration) / AV_TIME_BASE : 0;
    }

private:
    [[nodiscard]] const AVCodecParameters* parameters() const { return container->streams[stream]->codecpar; }

    /// No packet: what the decoder still holds back. A packet that can't be decoded is passed over; the
    /// length tells whether there were too many.
    void decode(const AVPacket* data) {
        avcodec_send_packet(decoder.get(), data);
        while (avcodec_receive_frame(decoder.get(), frame.get()) >= 0)
            convert(frame.get());
    }

    /// No frame: what the converter still holds back.
    void convert(const AVFrame* data) {
        if (!converter && (data == nullptr || !startConverter(*data)))
            return;
        const int samples = swr_get_out_samples(converter.get(), data != nullptr ? data->nb_samples : 0);
        if (samples <= 0)
            return;
        const std::size_t before = sound.samples.size();
        if (before > mostSamples)
            throw SoundFileError("the sound is too long");
        sound.samples.resize(before + static_cast<std::size_t>(samples) * Sound::channels);
        auto* out = static_cast<std::uint8_t*>(static_cast<void*>(&sound.samples[before]));
        const auto* const* in =
            data != nullptr ? const_cast<const std::uint8_t**>(data->extended_data) : nullptr;
        const int written = swr_convert(converter.get(), &out, samples, const_cast<const std::uint8_t**>(in),
                                        data != nullptr ? data->nb_samples : 0);
        sound.samples.resize(before + static_cast<std::size_t>(written > 0 ? written : 0) * Sound::channels);
    }

    bool startConverter(const AVFrame& first) {
        // Copies: some versions of the library want to be able to write to them.
        AVChannelLayout stereo = AV_CHANNEL_LAYOUT_STEREO;
        AVChannelLayout layout = first.ch_layout;
        SwrContext* context = nullptr;
        if (swr_alloc_set_opts2(&context, &stereo, AV_SAMPLE_FMT_FLT, Sound::rate, &layout,
                                static_cast<AVSampleFormat>(first.format), first.sample_rate, 0, nullptr) < 0)
            return false;
        converter.reset(context);
        if (swr_init(context) >= 0)
            return true;
        converter.reset();
        return false;
    }

    Container container;
    int stream = -1;
    Decoder decoder;
    Converter converter;
    Packet packet{av_packet_alloc()};
    Frame frame{av_frame_alloc()};
    Sound sound;
};

} // namespace

Sound readSoundFile(const std::filesystem::path& file) {
    requireReadable(file);
    av_log_set_level(AV_LOG_QUIET); // standard error is for one line of ours
    Decoding decoding(file);
    Sound sound = decoding.run();
    if (sound.samples.empty())
        throw SoundFileError(undecodable);
    const double length = static_cast<double>(sound.samples.size()) / (Sound::channels * Sound::rate);
    if (length + padding < decoding.promisedLength() * (1 - estimate))
        throw SoundFileError(cutShort);
    return sound;
}

} // namespace tambrelle
