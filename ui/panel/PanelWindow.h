#pragma once

#include "platform/PopoverKind.h"

#include <QElapsedTimer>
#include <QPoint>
#include <QWidget>

namespace tambrelle {

class MenuBarView;

/// The popover that holds the panel. On a screen too low for the whole panel it scrolls.
class PanelWindow final : public QWidget {
    Q_OBJECT

public:
    /// Takes the view.
    PanelWindow(MenuBarView* view, PopoverKind kind);

    /// Opens at the click, or closes when it is open.
    void toggle(QPoint click);
    /// Opens there, unless it is open.
    void present(QPoint place);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void open(QPoint click);
    void fit();
    void scrollTo(int top);

    MenuBarView* view;
    PopoverKind kind;
    QElapsedTimer sinceLeft; ///< Since a standing panel lost the focus and closed.
    QPoint lastClick;
    QMetaObject::Connection availability; ///< Of the screen that it is on.
};

} // namespace tambrelle
