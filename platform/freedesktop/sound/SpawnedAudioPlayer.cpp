#include "platform/freedesktop/sound/SpawnedAudioPlayer.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <algorithm>
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
    silenceBefore(nullptr);
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
    auto* const player = new QProcess(this);
    wanted.push_back(player);
    // The chime is the calendar's and ends with it, also where the calendar is gone before the player has
    // begun.
    player->setChildProcessModifier([calendar = ::getpid()] {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (::getppid() != calendar)
            ::_exit(EXIT_SUCCESS);
    });
    player->setStandardInputFile(QProcess::nullDevice());
    // Of a sound that has been replaced only the end is noted: the failure has lost its meaning.
    const auto end = [this, player, onFailure](const QString& reason) {
        player->deleteLater();
        if (forget(player) && !reason.isEmpty())
            onFailure(reason);
    };
    connect(player, &QProcess::readyReadStandardOutput, this, [this, player] {
        player->readAllStandardOutput();
        silenceBefore(player);
    });
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

void SpawnedAudioPlayer::silenceBefore(const QProcess* player) {
    const auto from = std::find(wanted.begin(), wanted.end(), player);
    // It has given way to a later one.
    if (player != nullptr && from == wanted.end())
        return;
    // Asked rather than killed: sound servers take the sudden death of a client badly.
    std::for_each(wanted.begin(), from, [](QProcess* former) { former->terminate(); });
    wanted.erase(wanted.begin(), from);
}

bool SpawnedAudioPlayer::forget(const QProcess* player) {
    return std::erase(wanted, player) > 0;
}

} // namespace tambrelle
