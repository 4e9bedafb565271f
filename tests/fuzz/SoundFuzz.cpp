// A chime's file holds anything at all: it is decoded, or said to be no sound.

#include "player/SoundFile.h"
#include "player/WaveHeader.h"
#include "tests/fuzz/FuzzFile.h"

#include <cmath>
#include <string_view>

using namespace tambrelle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::FuzzFile file("chime");
    const std::string_view bytes(static_cast<const char*>(static_cast<const void*>(data)), size);
    static_cast<void>(promisesMoreThanFile(bytes.substr(0, waveHeaderSize), size));
    file.write({data, size});
    try {
        const Sound sound = readSoundFile(file.path().toStdString());
        fuzz::mustHold(!sound.samples.empty() && sound.samples.size() % Sound::channels == 0);
    } catch (const SoundFileError& error) {
        fuzz::mustHold(error.what() != nullptr && *error.what() != '\0');
    }
    return 0;
}
