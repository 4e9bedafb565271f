#include "platform/freedesktop/sound/SpawnedAudioPlayer.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <chrono>
#include <csignal>
#include <cstdlib>

#include <sys/prctl.h>
#include <unistd.h>

namespace tambrelle {

namespace {

constexpr std::chrono::milliseconds longestGoodbye{500};

/// Why the player ended before its sound did; empty when it did not.
QString reasonOf(QProcess& player, int status, QProcess::ExitStatus ending) {
    if (ending == QProcess::CrashExit)
        return QStringLiteral("the player died of it");
    if (status == EXIT_SUCCESS)
        return {};
    const QString text = QString::fromLocal8Bit(player.readAllStandardError()).simplified();
    return text.isEmpty() ? QStringLiteral("the player ended with status %1").arg(status) : text;
}

} // namespace

SpawnedAudioPlayer::SpawnedAudioPlayer(const QString& program) : program(program) {}

SpawnedAudioPlayer::~SpawnedAudioPlayer() {
    silence();
    // A killed process is gone at once; the wait takes note of it, and the limit is for one that the kernel
    // holds.
    for (QProcess* const player : findChildren<QProcess*>())
        player->waitForFinished(static_cast<int>(longestGoodbye.count()));
}

QString SpawnedAudioPlayer::standardProgram() {
    const QString name = QStringLiteral("/tambrelle-player");
    QString beside = QCoreApplication::applicationDirPath() + name;
    if (QFile::exists(beside))
        return beside;
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../libexec/tambrelle") + name;
}

void SpawnedAudioPlayer::play(const QString& file, double volume, Failure onFailure) {
    silence();
    auto* const player = new QProcess(this);
    sounding = player;
    // The chime is the calendar's and ends with it, also where the calendar is gone before the player has
    // begun.
    player->setChildProcessModifier([calendar = ::getpid()] {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (::getppid() != calendar)
            ::_exit(EXIT_SUCCESS);
    });
    player->setStandardInputFile(QProcess::nullDevice());
    player->setStandardOutputFile(QProcess::nullDevice());
    // Of a sound that has been replaced only the end is noted: the failure has lost its meaning.
    const auto end = [this, player, onFailure](const QString& reason) {
        player->deleteLater();
        if (sounding == player && !reason.isEmpty())
            onFailure(reason);
    };
    // Queued: a program that can't be started may say so from within start().
    connect(
        player, &QProcess::errorOccurred, this,
        [player, end](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                end(player->errorString());
        },
        Qt::QueuedConnection);
    connect(player, &QProcess::finished, this, [player, end](int status, QProcess::ExitStatus ending) {
        end(reasonOf(*player, status, ending));
    });
    player->start(program, {QString::number(volume), file});
}

void SpawnedAudioPlayer::silence() {
    if (!sounding)
        return;
    // Asked rather than killed: sound servers take the sudden death of a client badly.
    sounding->terminate();
    sounding.clear();
}

} // namespace tambrelle
