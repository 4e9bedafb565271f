// What the toolkit itself costs: an application object, a status notifier item with a fixed text, and a
// precise timer that wakes the program once a decimal second to do nothing. tambrelle is measured against it.
// With "--text" the item's icon is its text, drawn once: fonts are most of what a program with a text costs
// more.
#include "bench/baseline/BaselineItem.h"

#include <QApplication>
#include <QTimer>

#include <chrono>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    const bool withText = QApplication::arguments().contains(QStringLiteral("--text"));
    tambrelle::baseline::BaselineItem item(withText ? QStringLiteral("🌫️ 23 Brumaire · Tridi · 5:00")
                                                    : QString());
    item.registerWithBar();

    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &application, [] {});
    timer.start(std::chrono::milliseconds(864));
    return QApplication::exec();
}
