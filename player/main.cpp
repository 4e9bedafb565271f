// tambrelle-player VOLUME FILE: plays one sound file (mp3, m4a or wav) at VOLUME (0 to 1 of the file's own
// level) and ends with it. Status 1 and one line on standard error when the file can't be opened or decoded,
// 2 when called wrongly, else 0: a sound server that is absent or hangs is no fault of the file.

#include "player/Deadline.h"
#include "player/Playback.h"
#include "player/SoundDecoding.h"
#include "player/Termination.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

using namespace tambrelle;
using namespace std::chrono_literals;

constexpr int usageError = 2;

/// For what comes before the first sound, and for a sound server that is late with the last one.
constexpr auto patience = 8s;

/// The media libraries chatter on standard error, which is for one line of ours: they get the void instead.
class Complaint {
public:
    Complaint() : descriptor(fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1)) {
        const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(nothing, STDERR_FILENO);
        close(nothing);
    }

    void say(const QString& reason) const { dprintf(descriptor, "%s\n", reason.toLocal8Bit().constData()); }

private:
    int descriptor;
};

std::optional<double> volumeFrom(const char* text) {
    bool isNumber = false;
    const double volume = QByteArray(text).toDouble(&isNumber);
    return isNumber && volume >= 0 && volume <= 1 ? std::optional(volume) : std::nullopt;
}

/// The backend that plays all three formats without further packages, where the toolkit has it.
void preferBackend() {
    const QStringList folders = QCoreApplication::libraryPaths();
    const bool present = std::any_of(folders.begin(), folders.end(), [](const QString& folder) {
        return QFile::exists(folder + QStringLiteral("/multimedia/libffmpegmediaplugin.so"));
    });
    if (present && !qEnvironmentVariableIsSet("QT_MEDIA_BACKEND"))
        qputenv("QT_MEDIA_BACKEND", "ffmpeg");
}

} // namespace

int main(int argc, char** argv) {
    const auto volume = argc == 3 ? volumeFrom(argv[1]) : std::nullopt;
    if (!volume) {
        std::fputs("usage: tambrelle-player VOLUME FILE\n", stderr);
        return usageError;
    }
    // The chime is the calendar's and ends with it.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    endProcessAfter(patience);
    const Complaint complaint;
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tambrelle")); // the sound server's mixer shows it
    preferBackend();

    const QString file = QFile::decodeName(argv[2]);
    const auto fail = [&complaint, &file](const QString& reason) {
        complaint.say(file + QStringLiteral(": ") + reason);
        // Tearing the backend down can block on the sound server, and there is nothing to keep.
        std::_Exit(EXIT_FAILURE);
    };
    std::unique_ptr<Playback> playback;
    SoundDecoding decoding(file);
    QObject::connect(&decoding, &SoundDecoding::failed, &decoding, fail);
    QObject::connect(&decoding, &SoundDecoding::decoded, &decoding, [&](const QByteArray& samples) {
        const QAudioFormat format = SoundDecoding::format();
        const std::chrono::microseconds length(format.durationForBytes(static_cast<qint32>(samples.size())));
        endProcessAfter(std::chrono::ceil<std::chrono::milliseconds>(length) + patience);
        playback = std::make_unique<Playback>(samples, format, *volume);
        QObject::connect(playback.get(), &Playback::ended, &decoding, [] { std::_Exit(EXIT_SUCCESS); });
        playback->start();
    });
    const Termination termination;
    QObject::connect(&termination, &Termination::requested, &decoding, [&playback] {
        if (playback)
            playback->stop();
        else
            std::_Exit(EXIT_SUCCESS);
    });
    QMetaObject::invokeMethod(&decoding, &SoundDecoding::start, Qt::QueuedConnection);
    return QCoreApplication::exec();
}
