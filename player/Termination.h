#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace tambrelle {

/// Turns SIGTERM into a signal of the event loop. A process whose event loop does not get round to it ends
/// all the same, a second later. There is one at a time.
class Termination : public QObject {
    Q_OBJECT

public:
    Termination();
    ~Termination() override;

signals:
    void requested();

private:
    QSocketNotifier notifier;
};

} // namespace tambrelle
