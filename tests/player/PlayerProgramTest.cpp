#include <QFile>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr int success = 0;
constexpr int badFile = 1;
constexpr int badUsage = 2;

struct Ending {
    int status = -1;
    QString errors;
};

/// The player with no sound server to be found.
class PlayerProgramTest : public testing::Test {
protected:
    Ending play(const QStringList& arguments) {
        QProcess player;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder.path());
        environment.insert(QStringLiteral("PULSE_SERVER"), folder.filePath(QStringLiteral("no-server")));
        player.setProcessEnvironment(environment);
        player.start(QStringLiteral(TAMBRELLE_PLAYER), arguments);
        if (!player.waitForFinished(30'000) || player.exitStatus() != QProcess::NormalExit)
            return {};
        return {player.exitCode(), QString::fromLocal8Bit(player.readAllStandardError())};
    }

    Ending play(const QString& file) { return play({QStringLiteral("0.6"), file}); }

    QString write(const QString& name, const QByteArray& content) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    static QByteArray chime() {
        QFile file(QStringLiteral(TAMBRELLE_CHIME));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    static void expectComplaint(const Ending& ending, const QString& file, const QString& reason) {
        EXPECT_EQ(ending.status, badFile);
        EXPECT_EQ(ending.errors.toStdString(), (file + ": " + reason + "\n").toStdString());
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(PlayerProgramTest, EndsQuietlyWithoutASoundServer) {
    const Ending ending = play(QStringLiteral(TAMBRELLE_CHIME));
    EXPECT_EQ(ending.status, success);
    EXPECT_EQ(ending.errors.toStdString(), "");
}

TEST_F(PlayerProgramTest, SaysThatAFileIsMissing) {
    const QString file = folder.filePath(QStringLiteral("nowhere.mp3"));
    expectComplaint(play(file), file, QStringLiteral("No such file or directory"));
}

TEST_F(PlayerProgramTest, SaysThatAFileIsEmpty) {
    const QString file = write(QStringLiteral("empty.mp3"), {});
    expectComplaint(play(file), file, QStringLiteral("the file is empty"));
}

TEST_F(PlayerProgramTest, SaysThatAFileIsAFolder) {
    expectComplaint(play(folder.path()), folder.path(), QStringLiteral("a folder"));
}

TEST_F(PlayerProgramTest, SaysThatAFileIsNoSound) {
    const QString file =
        write(QStringLiteral("text.mp3"), QByteArray("Liberty, equality, fraternity\n").repeated(99));
    expectComplaint(play(file), file, QStringLiteral("no sound that can be decoded"));
}

TEST_F(PlayerProgramTest, SaysThatAFileIsCutShort) {
    const QString file = write(QStringLiteral("half.mp3"), chime().left(chime().size() / 2));
    expectComplaint(play(file), file, QStringLiteral("the file is cut short"));
}

TEST_F(PlayerProgramTest, SaysThatAFileIsCutToItsFirstBytes) {
    const QString file = write(QStringLiteral("start.mp3"), chime().left(1000));
    expectComplaint(play(file), file, QStringLiteral("no sound that can be decoded"));
}

TEST_F(PlayerProgramTest, RefusesAWrongCall) {
    for (const QStringList& arguments :
         {QStringList{}, QStringList{"0.6"}, QStringList{"loud", TAMBRELLE_CHIME},
          QStringList{"1.1", TAMBRELLE_CHIME}, QStringList{"-1", TAMBRELLE_CHIME},
          QStringList{"nan", TAMBRELLE_CHIME}}) {
        const Ending ending = play(arguments);
        EXPECT_EQ(ending.status, badUsage) << arguments.join(QLatin1Char(' ')).toStdString();
        EXPECT_FALSE(ending.errors.isEmpty());
    }
}
