#pragma once

#include <QObject>

#include <memory>

namespace tambrelle {

class DescriptorWatch;

/// Takes the signals by which a session or an administrator ends a program (SIGTERM, SIGINT, SIGHUP) as a
/// request, so that what is pending gets written and the item leaves the bar. A program that does not get
/// round to it is ended all the same, a second later. One that was started with a signal ignored goes on to
/// ignore it. One object a process.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

signals:
    void received();

private:
    std::unique_ptr<DescriptorWatch> watch;
};

} // namespace tambrelle
