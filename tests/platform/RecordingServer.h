#pragma once

#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <vector>

namespace tambrelle::test {

struct Shown {
    QString application;
    uint replaces = 0;
    QString icon;
    QString summary;
    QString body;
    QStringList actions;
    QVariantMap hints;
    int expiry = 0;
};

/// A notification service that records what it is told to show.
class RecordingServer final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    enum class Manner { Answers, Refuses, KeepsSilent };

    std::vector<Shown> shown;
    QStringList capabilities{QStringLiteral("body")};
    Manner manner = Manner::Answers;

public slots:
    QStringList GetCapabilities() { // NOLINT: the protocol's own name
        behave();
        return capabilities;
    }

    uint Notify(const QString& application, uint replaces, const QString& icon, const QString& summary,
                const QString& body, const QStringList& actions, const QVariantMap& hints, int expiry) {
        shown.push_back({application, replaces, icon, summary, body, actions, hints, expiry});
        behave();
        return static_cast<uint>(shown.size());
    }

private:
    void behave() {
        if (manner == Manner::Refuses)
            sendErrorReply(QStringLiteral("org.example.Broken"), QStringLiteral("out of order"));
        if (manner == Manner::KeepsSilent)
            setDelayedReply(true);
    }
};

} // namespace tambrelle::test
