#include "ui/settings/TimePicker.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace tambrelle {

TimePicker::TimePicker(QWidget* parent) : QTimeEdit(parent) {
    lineEdit()->installEventFilter(this);
}

bool TimePicker::eventFilter(QObject* watched, QEvent* event) {
    const bool clicked =
        event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonDblClick;
    if (watched != lineEdit() || !clicked)
        return QTimeEdit::eventFilter(watched, event);
    setSelectedSection(currentSection());
    return true;
}

void TimePicker::keyPressEvent(QKeyEvent* event) {
    const bool wholeSelected = lineEdit()->selectedText() == lineEdit()->text();
    if (wholeSelected && !event->text().isEmpty() && event->text().front().isDigit())
        setSelectedSection(sectionAt(0));
    QTimeEdit::keyPressEvent(event);
}

} // namespace tambrelle
