#pragma once

#include <QWidget>

namespace tambrelle {

class SymbolButton;
class TextLabel;

/// Steps to the day before and the day after, and back to today.
class NavigationBar final : public QWidget {
    Q_OBJECT

public:
    explicit NavigationBar(QWidget* parent = nullptr);

    void present(bool onToday);

signals:
    void previousDayRequested();
    void nextDayRequested();
    void todayRequested();

private:
    TextLabel* today;
    SymbolButton* backToToday;
};

} // namespace tambrelle
